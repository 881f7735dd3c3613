#!/usr/bin/env bash
# How long the program takes from its start until its window stands and it has ended again, beside a program that shows an
# empty window: start-up.sh [PRESET [RUNS]]. Medians of runs that take turns, without a display and, where Xvfb is, with one.
set -euo pipefail
cd "$(dirname "$0")/.."
build=build/${1:-release}
runs=${2:-41}
for target in bin/NivraViewer bin/nivra-empty-window bench/plugins/generic/libquitwhenshown.so; do
  [ -e "$build/$target" ] || { echo "$build/$target is missing: build all of the preset first" >&2; exit 2; }
done

folder=$(mktemp -d)
server=
trap '[ -z "$server" ] || kill "$server" 2>/dev/null; rm -rf "$folder"' EXIT
export XDG_DATA_HOME=$folder/data XDG_CONFIG_HOME=$folder/config XDG_RUNTIME_DIR=$folder
export QT_PLUGIN_PATH=$PWD/$build/bench/plugins QT_QPA_GENERIC_PLUGINS=quitwhenshown

microseconds() { # of one run of a program
  local start=${EPOCHREALTIME/[.,]/}
  "$@" >/dev/null 2>&1
  echo $((${EPOCHREALTIME/[.,]/} - start))
}
median() { sort -n "$1" | awk '{ t[NR] = $1 } END { printf "%.1f", t[int((NR + 1) / 2)] / 1000 }'; }

compare() { # NAME: prints a line
  "$build/bin/nivra-empty-window" >/dev/null 2>&1 # files into memory
  "$build/bin/NivraViewer" >/dev/null 2>&1
  rm -f "$folder"/*.times
  for ((run = 0; run < runs; ++run)); do
    microseconds "$build/bin/nivra-empty-window" >>"$folder/empty.times"
    microseconds "$build/bin/NivraViewer" >>"$folder/viewer.times"
  done
  empty=$(median "$folder/empty.times")
  viewer=$(median "$folder/viewer.times")
  awk -v name="$1" -v e="$empty" -v v="$viewer" \
    'BEGIN { printf "%-10s NivraViewer %.1f ms, an empty window %.1f ms: %.2f times\n", name, v, e, v / e }'
}

QT_QPA_PLATFORM=offscreen compare offscreen
if command -v Xvfb >/dev/null; then
  Xvfb -displayfd 3 -screen 0 1400x1000x24 3>"$folder/display" 2>/dev/null &
  server=$!
  for ((i = 0; i < 100; ++i)); do [ ! -s "$folder/display" ] || break; sleep 0.1; done
  DISPLAY=:$(cat "$folder/display") QT_QPA_PLATFORM=xcb compare Xvfb
fi
