#!/usr/bin/env bash
# Builds the call stack writer for Windows and its test with the cross compiler and, where Wine is installed, runs the test.
set -euo pipefail
cd "$(dirname "$0")/.."
compiler=${MINGW_CXX:-x86_64-w64-mingw32-g++}
command -v "$compiler" >/dev/null || { echo "$compiler is missing (Debian: g++-mingw-w64-x86-64)" >&2; exit 1; }

folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
cmake -S src/base/callstack -B "$folder" -DCMAKE_SYSTEM_NAME=Windows -DCMAKE_CXX_COMPILER="$compiler" -DNIVRA_WERROR=ON \
  -DCMAKE_CXX_FLAGS="-gdwarf-4 -O1" -DCMAKE_EXE_LINKER_FLAGS=-static >/dev/null
cmake --build "$folder"
echo "The Windows call stack writer builds"

wine=$(command -v wine64 || command -v wine || true)
[ -n "$wine" ] || { [ -x /usr/lib/wine/wine64 ] && wine=/usr/lib/wine/wine64; } || true
if [ -z "$wine" ]; then
  echo "Wine is missing: not run"
  exit 0
fi
# A prefix of its own, so that nobody's Wine settings are touched.
cd "$folder/check"
if ! WINEPREFIX="$folder/prefix" WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml=" \
  timeout 180 "$wine" callstackcheck.exe callstack.txt 2>output.txt; then
  cat output.txt
  echo "The test failed under Wine" >&2
  exit 1
fi
grep -E '^#' output.txt || true
grep -q 'innermost' output.txt || echo "Wine gave no symbol names" >&2
echo "The test wrote its call stack under Wine"
