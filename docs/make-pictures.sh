#!/usr/bin/env bash
# Makes the pictures of the documents again: the window under Xvfb, and exported drawings. Needs a release build, or
# NIVRA_VIEWER with the path of another one.
set -euo pipefail
cd "$(dirname "$0")/.."
program=${NIVRA_VIEWER:-build/release/bin/NivraViewer}
images=docs/images
mkdir -p "$images"
data=$(mktemp -d)
export XDG_DATA_HOME=$data/data XDG_CONFIG_HOME=$data/config XDG_CACHE_HOME=$data/cache
trap 'rm -rf "$data"' EXIT

missing=()
for tool in Xvfb xdotool import montage mogrify rsvg-convert pdftoppm gs; do command -v "$tool" >/dev/null || missing+=("$tool"); done
[ ${#missing[@]} -eq 0 ] || { echo "needs ${missing[*]} (apt-get install xvfb xdotool imagemagick librsvg2-bin poppler-utils ghostscript)" >&2; exit 1; }

window() { # FILE PICTURE [COMMANDS with $id]
  xvfb-run -a -s '-screen 0 1280x960x24' bash -c '
    "$1" --clean "$2" & pid=$!
    for _ in $(seq 100); do
      id=$(xdotool search --onlyvisible --name "CASE:" 2>/dev/null | head -n 1) && [ -n "$id" ] && break
      sleep 0.1
    done
    sleep 1 # the first frame follows the title
    xdotool windowsize "$id" 1200 900; sleep 0.5
    eval "${4:-}"
    import -window root -crop 1200x900+0+0 "$3"
    kill "$pid"' _ "$program" "$1" "$2" "${3:-}"
}

window example/DE_H2/S5/S5.scen.jsn "$images/example-window.png"
window example/DE_H2/S5/S5.scen.jsn "$images/page.png" 'xdotool key --clearmodifiers ctrl+alt+p; sleep 3'
"$program" --export "$images/example.png" --width 1200 example/DE_H2/S5/S5.scen.jsn
for n in 11 40 135; do
  file=../shared/data/GasLib-$n/N1/N1.scen.jsn
  [ ! -f "$file" ] || window "$file" "$images/gaslib-$n-window.png"
done

example=example/DE_H2/S5/S5.scen.jsn
labels() { # NUMBER [OPTION...]
  "$program" --export "$images/labels-$1.png" --width 1000 --labels selected "${@:2}" "$example"
}
labels 1
labels 2 --extent 380000,5620000,620000,5800000
labels 3 --extent 403500,5722600,407300,5725450
window "$example" "$images/selection.png" 'xdotool mousemove 560 440 click --repeat 5 --delay 100 4; sleep 2; xdotool windowfocus $id; sleep 0.3; xdotool mousemove 560 440 key ctrl+a; sleep 1'
window "$example" "$images/context-menu.png" 'xdotool mousemove 388 409; sleep 0.5; xdotool click 3; sleep 1'
window "$example" "$images/configure-draw.png" 'xdotool mousemove 1160 280 click --repeat 2 --delay 80 1; sleep 1.5'
window "$example" "$images/findings.png" 'xdotool mousemove 1165 886 click 1; sleep 0.5; xdotool key F8 F8; sleep 1.5'
# The walk through the tools, on a copy: a category is saved on the way.
walk=$data/walk
mkdir -p "$walk"
cp -r example/DE_H2 "$walk/"
walk_window() { # NUMBER COMMANDS
  window "$walk/DE_H2/S5/S5.scen.jsn" "$images/walk-$1.png" "$2"
}
search='xdotool windowfocus $id; sleep 0.3; xdotool key ctrl+f; sleep 0.5; xdotool mousemove 150 155 click 1 type "abs(v@ELE)>10"; xdotool mousemove 150 94 click 1 type "^p"; xdotool key Return; sleep 1; xdotool mousemove 208 186 click 1; sleep 1;'
table='xdotool mousemove 54 849 click 1; sleep 1; xdotool mousemove 16 52 click 1; sleep 0.5; xdotool mousemove 778 52 click 1; sleep 0.5; xdotool mousemove 271 52 click 1; sleep 0.3; xdotool type v; xdotool key Return; sleep 1;'
dock() { echo "xdotool mousemove 100 10 click 1; sleep 0.5; xdotool mousemove 178 $1 click 1; sleep 0.8;"; } # y in the menu
window "$example" "$images/scenario.png" "$(dock 252)"'xdotool mousemove 600 300; sleep 0.5'
walk_window 1 "$search"
walk_window 2 "$search $(dock 102)"'xdotool mousemove 134 552 click 1; sleep 0.5; xdotool mousemove 60 709 click --repeat 2 --delay 80 1; sleep 0.3; xdotool type "fast pipes"; xdotool key Return; sleep 0.3; xdotool mousemove 1150 850 click 1; sleep 0.5'
walk_window 3 "$search $table"
walk_window 4 "$search $table"'xdotool mousemove 143 16 click 1; sleep 1'
walk_window 5 "$(dock 177)"'xdotool mousemove 36 184 click 1; sleep 0.3; xdotool mousemove 36 247 click 1; sleep 1'
walk_window 6 'xdotool windowfocus $id; sleep 0.3; xdotool key ctrl+f; sleep 0.5; xdotool type "N_Görlitz"; xdotool key Return; sleep 1; xdotool mousemove 60 235 click --repeat 2 --delay 80 1; sleep 2; xdotool mousemove 789 443; sleep 0.5; xdotool click 3; sleep 0.5; xdotool mousemove 880 555 click 1; sleep 0.5; xdotool mousemove 840 300 key Home; sleep 1.5'

station='xdotool windowfocus $id; sleep 0.3; xdotool key ctrl+f; sleep 0.5;'
window "$walk/DE_H2/S5/S5.scen.jsn" "$images/subnet.png" "$station"' xdotool type "CS_Werne"; xdotool key Escape; xdotool mousemove 150 94 click 1 type "sub"; xdotool key Return; sleep 1; xdotool mousemove 60 233 click --repeat 2 --delay 80 1; sleep 2; xdotool mousemove 765 440; sleep 0.5; xdotool click 3; sleep 1; xdotool mousemove 820 527 click 1; sleep 0.7; xdotool mousemove 600 527; sleep 0.3; xdotool click 1; sleep 2; sub=$(xdotool search --onlyvisible --name Subassembly | head -n 1); xdotool windowsize $sub 1200 900; sleep 0.5; xdotool windowfocus $sub; sleep 0.3; xdotool key ctrl+f; sleep 0.5; xdotool type "_V"; xdotool key Escape; xdotool key Return; sleep 1; xdotool mousemove 200 185 click 1; sleep 1'
machine_map() { # COMPRESSOR PICTURE
  window "$walk/DE_H2/S5/S5.scen.jsn" "$2" "$station xdotool type '$1'"'; xdotool key Escape; xdotool key Return; sleep 1; xdotool mousemove 60 233 click --repeat 2 --delay 80 1; sleep 2; xdotool mousemove 789 443; sleep 0.5; xdotool click 3; sleep 1; xdotool mousemove 880 530 click 1; sleep 2; xdotool mousemove 1020 300; sleep 1'
}
machine_map CS_Rehden_C1 "$images/characteristics.png"
machine_map CS_Rimpar_C1 "$images/piston.png"

# What was opened before, and a file that changes while it is shown.
studies=$data/studies
for network in 11 40 135; do
  [ ! -d "../shared/data/GasLib-$network" ] || { mkdir -p "$studies"; cp -r "../shared/data/GasLib-$network" "$studies/"; }
done
if [ -d "$studies" ]; then
  for file in "$studies"/*/N1/N1.scen.jsn "$studies"/*/*.geom.jsn "$walk/DE_H2/S5/S5.scen.jsn"; do
    xvfb-run -a -s '-screen 0 1280x960x24' bash -c '"$1" "$2" & pid=$!; sleep 6; kill "$pid"' _ "$program" "$file"
  done
  rm -r "$studies/GasLib-11/N1" # one that is no longer there
  xvfb-run -a -s '-screen 0 1200x900x24' bash -c '"$1" & pid=$!; sleep 4; import -window root -crop 1200x900+0+0 "$2"; kill "$pid"' \
    _ "$program" "$images/start-page.png"
  window "$studies/GasLib-40/N1/N1.scen.jsn" "$images/reload-bar.png" "echo >>'$studies/GasLib-40/N1/N1.scen.jsn'; sleep 3"
  mogrify -crop 1200x520+0+0 +repage "$images/reload-bar.png"
fi

formats=$(mktemp -d)
for format in png jpg bmp tif svg pdf ps; do
  "$program" --export "$formats/drawing.$format" --width 500 "$example"
done
rsvg-convert "$formats/drawing.svg" -o "$formats/svg.png"
pdftoppm -singlefile -r 85 -png "$formats/drawing.pdf" "$formats/pdf"
gs -q -dNOPAUSE -dBATCH -sDEVICE=png16m -r85 -sOutputFile="$formats/ps.png" "$formats/drawing.ps"
montage -label png "$formats/drawing.png" -label jpg "$formats/drawing.jpg" -label bmp "$formats/drawing.bmp" -label tif "$formats/drawing.tif" \
  -label svg "$formats/svg.png" -label pdf "$formats/pdf.png" -label ps "$formats/ps.png" -tile 4x -geometry 300x225+4+4 "$images/formats.png"
rm -rf "$formats"

# Drawings have few colours: a table of 255 of them makes the files a third as large, and nobody sees it.
mogrify -depth 8 +dither -colors 255 -define png:compression-level=9 -strip "$images"/*.png
