#!/usr/bin/env bash
# Makes the pixel icons of the desktop anew out of the logo; needs rsvg-convert (librsvg2-bin).
set -euo pipefail
cd "$(dirname "$0")"
for size in 16 22 24 32 48 64 128 256; do
  rsvg-convert --width "$size" --height "$size" --output "icons/$size.png" ../resources/app/nivra.svg
done
