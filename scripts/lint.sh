#!/usr/bin/env bash
# clang-tidy over the project's own sources: lint.sh BUILD_FOLDER [FILE...]. A file that passed before, with the same headers,
# rules and packages, is passed over.
set -euo pipefail
cd "$(dirname "$0")/.."
folder=$1
shift
if [ $# -gt 0 ]; then files=("$@"); else mapfile -t files < <(git ls-files 'src/*.cpp' 'bench/*.cpp' | grep -v callstack_windows); fi
# The compiler's own switches that clang does not know are taken out of a copy of the compile commands.
commands=$(mktemp -d)
trap 'rm -rf "$commands"' EXIT
sed -e 's/-fno-sanitize-recover=undefined//g' "$folder/compile_commands.json" >"$commands/compile_commands.json"

passed=${XDG_CACHE_HOME:-$HOME/.cache}/nivra-reader/lint
mkdir -p "$passed"
find "$passed" -type f -mtime +30 -delete
surroundings=$({
  clang-tidy --version
  dpkg-query -W
  git ls-files -z '*.h' '*.ui' '*CMakeLists.txt' '*.cmake' CMakePresets.json .clang-tidy | xargs -0 cat
} | sha256sum)

lint() {
  local key
  key=$({ echo "$surroundings" "$1"; cat "$1"; } | sha256sum | cut -d' ' -f1)
  [ -e "$passed/$key" ] || { clang-tidy --quiet -p "$commands" "$1" && : >"$passed/$key"; }
}
export -f lint
export surroundings passed commands
printf '%s\0' "${files[@]}" | xargs -0 -P "$(nproc)" -n 1 bash -c 'lint "$0"' \
  2> >(grep -vE 'warnings? (generated|treated)|Suppressed|^Use -header' >&2)
