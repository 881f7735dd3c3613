#!/usr/bin/env bash
# Compiles the Windows call stack writer with the cross compiler and, where Wine is installed, runs its demonstration.
set -euo pipefail
cd "$(dirname "$0")/.."
compiler=${MINGW_CXX:-x86_64-w64-mingw32-g++}
command -v "$compiler" >/dev/null || { echo "$compiler is missing (Debian: g++-mingw-w64-x86-64)" >&2; exit 1; }

folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
"$compiler" -std=c++17 -gdwarf-4 -O1 -Wall -Wextra -Wpedantic -Wshadow -Werror -static -Isrc/base \
  src/base/callstack_windows.cpp tests/base/callstack_windows_demo.cpp -o "$folder/demo.exe"
echo "The Windows call stack writer compiles"

wine=$(command -v wine64 || command -v wine || true)
[ -n "$wine" ] || { [ -x /usr/lib/wine/wine64 ] && wine=/usr/lib/wine/wine64; } || true
if [ -z "$wine" ]; then
  echo "Wine is missing: not run"
  exit 0
fi
# A prefix of its own, so that nobody's Wine settings are touched.
cd "$folder"
if ! WINEPREFIX="$folder/prefix" WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml=" \
  timeout 180 "$wine" demo.exe callstack.txt >output.txt; then
  cat output.txt
  echo "The demonstration failed under Wine" >&2
  exit 1
fi
grep -E '^#' output.txt || true
grep -q 'innermost' output.txt || echo "Wine gave no symbol names" >&2
echo "The demonstration wrote its call stack under Wine"
