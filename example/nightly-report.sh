#!/bin/sh
# Writes the pictures, tables and findings of all scenarios of the example into a folder: nightly-report.sh FOLDER. The exit
# status is that of the program: 0 all is well, 1 something could not be done, 3 findings, 4 violated bounds. NIVRA_VIEWER
# names another program than the installed one.
set -u
here=$(cd "$(dirname "$0")" && pwd)
folder=${1:?usage: $0 FOLDER}
mkdir -p "$folder" || exit 1
"${NIVRA_VIEWER:-NivraViewer}" --jobs "$here/nightly-report.json" --output "$folder" >"$folder/report.txt" 2>&1
status=$?
cat "$folder/report.txt"
exit "$status"
