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
# What each source was compiled from, without the system's headers: "source header header...".
ninja -C "$folder" -t deps | awk -v top="$top/" '
  /#deps/ { if (line != "") print line; line = ""; next }
  /^ / && $1 !~ /^\/usr\// { sub(/^(\.\.\/)+/, "", $1); sub(top, "", $1); line = line == "" ? $1 : line " " $1 }
  END { if (line != "") print line }' | grep -v '_autogen/mocs_compilation' >"$commands/sources" || true

# The compiler's own switches that clang does not know are taken out of a copy of the compile commands. Each header gets
# the command of a source that includes it, for what clang would guess may be a source that knows other folders.
python3 - "$folder/compile_commands.json" "$commands" "$top" <<'PYTHON'
import json, os, shlex, sys
given, commands, top = sys.argv[1:]
entries = json.load(open(given))
for entry in entries:
    entry["command"] = entry["command"].replace("-fno-sanitize-recover=undefined", "")
by_source = {os.path.relpath(entry["file"], top): entry for entry in entries}
of_header = {}
for source, *headers in (line.split() for line in open(commands + "/sources")):
    if source in by_source:
        for header in headers:
            of_header.setdefault(header, by_source[source])
for header, entry in of_header.items():
    words = shlex.split(entry["command"])
    words[-1] = os.path.join(top, header)
    words[1:1] = ["-x", "c++"]
    entries.append({"directory": entry["directory"], "file": words[-1], "command": shlex.join(words)})
json.dump(entries, open(commands + "/compile_commands.json", "w"), indent=0)
PYTHON

passed=${XDG_CACHE_HOME:-$HOME/.cache}/nivra-reader/lint
mkdir -p "$passed"
find "$passed" -type f -mtime +30 -delete
surroundings=$({ clang-tidy --version; dpkg-query -W; cat .clang-tidy scripts/lint.sh; } | sha256sum)

hasUnusedIncludes() {
  local changes
  # The headers of the parser and of the workbooks include all others of their libraries, which makes them their owners in
  # nobody's eyes. The compiler has headers of its own that clang lacks, with an attribute that clang does not know.
  changes=$(clang-include-cleaner-19 --insert=false --ignore-headers='mpParser\.h,xlsxwriter\.h' --print=changes --extra-arg=-w \
    --extra-arg=-idirafter"$(c++ -print-file-name=include)" --extra-arg='-D__malloc__(...)=' \
    -p "$commands" "$1") || { echo "$1: its includes cannot be judged" >&2; return 0; }
  sed -n "s|^- \(.*\) @Line:\(.*\)|$1:\2: \1 is not used|p" <<<"$changes" | grep . >&2
}

check() {
  local file
  [[ $1 == *.h ]] || clang-tidy --quiet -p "$commands" "$1" || return 1
  for file in "$1" $([[ $1 == *.h ]] || git ls-files "*/$(basename "$1" .cpp).h"); do
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
