#!/usr/bin/env bash
# Installs what is missing, builds, and passes the tests. Arguments go to ctest, such as -R view.
set -euo pipefail
cd "$(dirname "$0")"
scripts/install-dependencies.sh build
scripts/build.sh release
ctest --preset release --parallel "$(nproc)" "$@"
