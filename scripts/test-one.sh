#!/usr/bin/env bash
# Builds and runs one test: test-one.sh FOLDER [CLASS|FUNCTION...], for example: test-one.sh view clickSelectsTheNearest.
# Without a name all classes of the folder run; PRESET chooses another build than "debug".
set -euo pipefail
cd "$(dirname "$0")/.."
[ $# -gt 0 ] && [ -d "tests/$1" ] || { echo "usage: $0 FOLDER [CLASS|FUNCTION...], with FOLDER one of $(ls -dm tests/*/ | tr -d '\n')" >&2; exit 2; }
folder=$1
shift
preset=${PRESET:-debug}
scripts/build.sh "$preset" "tst_$folder" >&2
QT_QPA_PLATFORM=${QT_QPA_PLATFORM:-offscreen} LC_ALL=C.UTF-8 "build/$preset/bin/tst_$folder" "$@"
