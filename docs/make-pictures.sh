#!/usr/bin/env bash
# Makes the pictures of the documents again: the window under Xvfb, and exported drawings. Needs a release build.
set -euo pipefail
cd "$(dirname "$0")/.."
program=build/release/bin/NivraViewer
images=docs/images
mkdir -p "$images"
data=$(mktemp -d)
export XDG_DATA_HOME=$data/data XDG_CONFIG_HOME=$data/config
trap 'rm -rf "$data"' EXIT

missing=()
for tool in Xvfb xdotool import; do command -v "$tool" >/dev/null || missing+=("$tool"); done
[ ${#missing[@]} -eq 0 ] || { echo "needs ${missing[*]} (apt-get install xvfb xdotool imagemagick)" >&2; exit 1; }

window() { # FILE PICTURE
  xvfb-run -a -s '-screen 0 1280x960x24' bash -c '
    "$1" "$2" & pid=$!
    for _ in $(seq 100); do
      id=$(xdotool search --onlyvisible --name "CASE:" 2>/dev/null | head -n 1) && [ -n "$id" ] && break
      sleep 0.1
    done
    sleep 1 # the first frame follows the title
    import -window "$id" "$3"
    kill "$pid"' _ "$program" "$1" "$2"
}

window example/DE_H2/S5/S5.scen.jsn "$images/example-window.png"
"$program" --export "$images/example.png" --width 1200 example/DE_H2/S5/S5.scen.jsn
for n in 11 40 135; do
  file=../shared/data/GasLib-$n/N1/N1.scen.jsn
  [ ! -f "$file" ] || window "$file" "$images/gaslib-$n-window.png"
done
