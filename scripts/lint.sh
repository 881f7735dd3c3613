#!/usr/bin/env bash
# clang-tidy over the project's own sources, and a search for unused includes in them and their headers:
# lint.sh BUILD_FOLDER [FILE...]; what was changed last comes first. A file that passed before, with the same compile
# command, headers, rules and packages, is passed over.
set -euo pipefail
cd "$(dirname "$0")/.."
top=$PWD
folder=$1
shift
if [ $# -gt 0 ]; then
  files=("$@")
else
  mapfile -t files < <({ git log -n 100 --format= --name-only; git ls-files; } | awk '!seen[$0]++' |
    grep -E '^(src|bench)/.*\.(cpp|h)$' | grep -v callstack_windows | while read -r file; do
      [ -e "$file" ] || continue
      # A header is looked at together with the source of its name.
      [[ $file != *.h || -z $(git ls-files "*/$(basename "$file" .h).cpp") ]] && echo "$file"
    done)
fi
commands=$(mktemp -d)
trap 'rm -rf "$commands"' EXIT
# The compiler's own switches that clang does not know are taken out of a copy of the compile commands.
sed -e 's/-fno-sanitize-recover=undefined//g' "$folder/compile_commands.json" >"$commands/compile_commands.json"
# What each source was compiled from, without the system's headers: "source header header...".
ninja -C "$folder" -t deps | awk -v top="$top/" '
  /#deps/ { if (line != "") print line; line = ""; next }
  /^ / && $1 !~ /^\/usr\// { sub(/^(\.\.\/)+/, "", $1); sub(top, "", $1); line = line == "" ? $1 : line " " $1 }
  END { if (line != "") print line }' | grep -v '_autogen/mocs_compilation' >"$commands/sources" || true

passed=${XDG_CACHE_HOME:-$HOME/.cache}/nivra-reader/lint
mkdir -p "$passed"
find "$passed" -type f -mtime +30 -delete
surroundings=$({ clang-tidy --version; dpkg-query -W; cat .clang-tidy scripts/lint.sh; } | sha256sum)

hasUnusedIncludes() {
  # The header of the parser includes all others of its library, which makes it their owner in nobody's eyes.
  clang-include-cleaner-19 --insert=false --ignore-headers='mpParser\.h' --print=changes --extra-arg=-w -p "$commands" "$1" |
    sed -n "s|^- \(.*\) @Line:\(.*\)|$1:\2: \1 is not used|p" | grep . >&2
}

check() {
  local file
  [[ $1 == *.h ]] || clang-tidy --quiet -p "$commands" "$1" || return 1
  for file in "$1" $([[ $1 == *.h ]] || git ls-files "src/*/$(basename "$1" .cpp).h"); do
    ! hasUnusedIncludes "$file" || return 1
  done
}

lint() {
  local key sources
  # Files that were not compiled here count with all headers.
  sources=$(grep -m 1 "^$1\( \|$\)" "$commands/sources" || { echo "$1"; git ls-files '*.h'; })
  key=$({
    echo "$surroundings" "$1"
    grep -F "\"command\"" "$commands/compile_commands.json" | grep -F "/$1\"" | sed "s|$top||g"
    for source in $sources; do [ ! -e "$source" ] || cat "$source"; done
  } | sha256sum | cut -d' ' -f1)
  [ -e "$passed/$key" ] || { check "$1" && touch "$passed/$key"; }
}
export -f lint check hasUnusedIncludes
export surroundings passed commands top
printf '%s\0' "${files[@]}" | xargs -0 -P "$(nproc)" -n 1 bash -c 'lint "$0"' \
  2> >(grep -vE 'warnings? (generated|treated)|Suppressed|^Use -header' >&2)
