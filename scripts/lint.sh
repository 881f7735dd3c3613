#!/usr/bin/env bash
# clang-tidy over the project's own sources: lint.sh BUILD_FOLDER [FILE...]
set -euo pipefail
cd "$(dirname "$0")/.."
folder=$1
shift
if [ $# -gt 0 ]; then files=("$@"); else mapfile -t files < <(git ls-files 'src/*.cpp' 'bench/*.cpp' | grep -v callstack_windows); fi
# The compiler's own switches that clang does not know are taken out of a copy of the compile commands.
commands=$(mktemp -d)
trap 'rm -rf "$commands"' EXIT
sed -e 's/-fno-sanitize-recover=undefined//g' "$folder/compile_commands.json" >"$commands/compile_commands.json"
printf '%s\n' "${files[@]}" | xargs -P "$(nproc)" -n 4 clang-tidy --quiet -p "$commands" 2> >(grep -vE 'warnings? (generated|treated)|Suppressed|^Use -header' >&2)
