#!/usr/bin/env bash
# Collects the texts of the program into translations/nivra_de.ts: translate.sh [--check]. New ones come in unfinished, those
# that are gone are dropped, the others stay as they are; the file is the same wherever and however often it is written.
# With --check it changes nothing and fails where a text is missing or unfinished, or a translation does not fit its text.
set -euo pipefail
cd "$(dirname "$0")/.."
file=translations/nivra_de.ts

# What is said on the command line alone stays English: no texts of nivra-convert, of the options, of batch runs and their jobs.
sources=$(mktemp)
properties=$(mktemp --suffix=.cpp)
collected=$(mktemp --suffix=_de.ts)
trap 'rm -f "$sources" "$properties" "$collected"' EXIT
git ls-files --cached --others --exclude-standard 'src/*.cpp' 'src/*.h' 'src/*.ui' |
  grep -vE '^src/(convert/|app/(batch|commandline|jobsfile|outputfolder))' | LC_ALL=C sort >"$sources"

# What people call properties, and what is said of them, as if it stood in a source.
awk -F';' '/^#/ || $1 == "type" { next }
  { for (i = 3; i <= 9; i += 6) if ($i != "") { gsub(/["\\]/, "\\\\&", $i); printf "QT_TRANSLATE_NOOP(\"Attribute\", \"%s\")\n", $i } }' \
  resources/model/Attribute.csv >"$properties"
echo "$properties" >>"$sources"
mapfile -t folders < <(find src -type d -name include; find src -mindepth 1 -maxdepth 2 -type d)

cp "$file" "$collected"
warnings=$(lupdate -silent -locations none -no-obsolete -source-language en -target-language de \
  -disable-heuristic sametext -disable-heuristic similartext -disable-heuristic number \
  "${folders[@]/#/-I}" "@$sources" -ts "$collected" 2>&1 >/dev/null)
if [ -n "$warnings" ]; then
  echo "$warnings" >&2
  echo "translate.sh: lupdate does not understand these sources (it knows no 20'000: write 20000)" >&2
  exit 1
fi

if [ "${1:-}" = --check ]; then
  cmp -s "$file" "$collected" || {
    diff -u "$file" "$collected" | head -40 >&2 || true
    echo "translate.sh: $file is not that of the sources: run scripts/translate.sh and translate what is unfinished" >&2
    exit 1
  }
  python3 scripts/check-translation.py "$file"
else
  cp "$collected" "$file"
  python3 scripts/check-translation.py "$file" || true
fi
