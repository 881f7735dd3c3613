#!/usr/bin/env bash
# Installs what is missing, builds, and opens FILE or the example. Without a display it writes the picture and says where.
set -euo pipefail
start=$PWD
top=$(cd "$(dirname "$0")" && pwd)
file=${1:-$top/example/DE_H2/S5/S5.scen.jsn}
case "$file" in /*) ;; *) file=$start/$file ;; esac

cd "$top"
scripts/install-dependencies.sh build
scripts/build.sh release NivraViewer

if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
  exec build/release/bin/NivraViewer "$file"
fi
name=$(basename "$file")
picture=$top/build/${name%%.*}.png
build/release/bin/NivraViewer --export "$picture" --width 1600 "$file"
echo "There is no display; the picture of $file is $picture"
