#!/usr/bin/env bash
# Configures a preset when needed and builds it: build.sh PRESET [TARGET...]
set -euo pipefail
cd "$(dirname "$0")/.."
preset=$1
shift
[ -f "build/$preset/build.ninja" ] || cmake --preset "$preset" >"/tmp/nivra-configure-$$.log" ||
  { cat "/tmp/nivra-configure-$$.log" >&2; exit 1; }
rm -f "/tmp/nivra-configure-$$.log"
targets=()
for target in "$@"; do targets+=(--target "$target"); done
cmake --build --preset "$preset" "${targets[@]}"
