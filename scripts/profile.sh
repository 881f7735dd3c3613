#!/usr/bin/env bash
# Where the time goes: profile.sh [OPTION...] FILE runs the optimised program without a window on FILE, as
# "NivraViewer --info FILE" unless options say otherwise, under perf, and prints the functions that took most of it.
set -euo pipefail
cd "$(dirname "$0")/.."
[ $# -gt 0 ] || { echo "usage: $0 [--info|--export PICTURE|...] FILE" >&2; exit 2; }
command -v perf >/dev/null || { echo "perf is missing (Debian: linux-perf)" >&2; exit 1; }
options=("$@")
[ $# -gt 1 ] || options=(--info "$1")
scripts/build.sh release NivraViewer >&2
data=$(mktemp)
trap 'rm -f "$data"' EXIT
perf record --quiet --call-graph fp --output "$data" build/release/bin/NivraViewer "${options[@]}" >/dev/null
perf report --input "$data" --no-children --percent-limit 1 --stdio --call-graph none 2>/dev/null
