#!/usr/bin/env bash
# Installs the Debian packages that are missing: install-dependencies.sh [build] [check]. Quick when nothing is missing.
set -euo pipefail

build=(g++ cmake ninja-build ccache pkg-config
  qtbase5-dev qttools5-dev qttools5-dev-tools qttranslations5-l10n libqt5svg5-dev qt5-image-formats-plugins libqt5opengl5-dev libqwt-qt5-dev libmuparserx-dev
  libudunits2-dev libsimdjson-dev libboost-dev libeigen3-dev libbenchmark-dev
  libxlsxwriter-dev zlib1g-dev
  fonts-liberation poppler-utils xvfb xauth)
check=(clang-format clang-tidy clang-tools-19 g++-mingw-w64-x86-64 python3 python3-numpy git mmdebstrap
  dpkg-dev lintian desktop-file-utils appstream shared-mime-info)

wanted=()
for set in "${@:-build}"; do
  case "$set" in
    build) wanted+=("${build[@]}") ;;
    check) wanted+=("${check[@]}") ;;
    *) echo "usage: $0 [build] [check]" >&2; exit 2 ;;
  esac
done

missing=()
for package in "${wanted[@]}"; do
  status=$(dpkg-query -W -f '${Status}' "$package" 2>/dev/null || true)
  [ "$status" = "install ok installed" ] || missing+=("$package")
done
[ ${#missing[@]} -gt 0 ] || exit 0

echo "Installing ${missing[*]}"
sudo=()
if [ "$(id -u)" -ne 0 ]; then
  command -v sudo >/dev/null || { echo "run as root, or install these packages yourself: ${missing[*]}" >&2; exit 1; }
  sudo=(sudo)
fi
"${sudo[@]}" apt-get update -qq || echo "the package lists could not be renewed; trying with those at hand" >&2
"${sudo[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
