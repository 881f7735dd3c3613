#!/usr/bin/env bash
# Lays out the project's C++ as .clang-format says: format.sh [--check] [FILE...]. With --check it changes nothing and fails
# where something is laid out otherwise.
set -euo pipefail
cd "$(dirname "$0")/.."
how=(-i)
if [ "${1:-}" = --check ]; then
  how=(--dry-run --Werror)
  shift
fi
if [ $# -gt 0 ]; then files=("$@"); else mapfile -t files < <(git ls-files --cached --others --exclude-standard '*.cpp' '*.h'); fi
clang-format "${how[@]}" "${files[@]}"
