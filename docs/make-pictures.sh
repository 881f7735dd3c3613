#!/usr/bin/env bash
# Makes the pictures of the documents again: the window under Xvfb, and exported drawings. Needs a release build, or
# NIVRA_VIEWER with the path of another one. Arguments name the pictures that are wanted ("walk-2 page"), none all.
# shellcheck disable=SC2016,SC2119,SC2120 # steps are read when the window stands
set -euo pipefail
cd "$(dirname "$0")/.."
export NIVRA_VIEWER=${NIVRA_VIEWER:-build/release/bin/NivraViewer}
images=$PWD/docs/images
mkdir -p "$images"
data=$(mktemp -d)
export XDG_DATA_HOME=$data/data XDG_CONFIG_HOME=$data/config XDG_CACHE_HOME=$data/cache
display='' viewer=''
trap 'kill $viewer $display 2>/dev/null || true; rm -rf "$data"' EXIT

missing=()
for tool in Xvfb xdotool import montage mogrify rsvg-convert pdftoppm gs; do command -v "$tool" >/dev/null || missing+=("$tool"); done
[ ${#missing[@]} -eq 0 ] || { echo "needs ${missing[*]} (apt-get install xvfb xdotool imagemagick librsvg2-bin poppler-utils ghostscript)" >&2; exit 1; }

wanted=("$@")
made=()
wants() { # PICTURE
  local picture
  [ ${#wanted[@]} -gt 0 ] || { made+=("$images/$1.png"); return 0; }
  for picture in "${wanted[@]}"; do
    [ "$picture" != "$1" ] || { made+=("$images/$1.png"); return 0; }
  done
  return 1
}

# What the steps of a picture are made of. Panels are asked for by key or by words, so that no menu needs to stay where it is.
press() { # KEY...
  local key
  for key in "$@"; do xdotool key --clearmodifiers "$key"; sleep 0.3; done
}
say() { xdotool type --delay 20 "$1"; sleep 0.4; } # TEXT
run_command() { # WORDS of a command
  press ctrl+shift+p
  sleep 0.5
  say "$1"
  press Return
  sleep 0.8
}
click() { # X Y [BUTTON [TIMES]]
  xdotool mousemove "$1" "$2"
  sleep 0.3
  xdotool click --repeat "${4:-1}" --delay 80 "${3:-1}"
  sleep 0.5
  away
}
away() { xdotool mousemove 1250 930; } # beside the window, so that no tip stands in the picture
drag() { # X Y X Y
  xdotool mousemove "$1" "$2" mousedown 1 mousemove "$(($1 + ($3 - $1) / 2))" "$(($2 + ($4 - $2) / 2))" mousemove "$3" "$4"
  sleep 0.3
  xdotool mouseup 1
  sleep 0.5
  away
}
go_to() { # ELEMENT, shown and selected
  press ctrl+g
  say "$1"
  press Return
  sleep 1.5
}
find_window() { # TITLE
  local id=
  for _ in $(seq 100); do
    id=$(xdotool search --onlyvisible --name "$1" 2>/dev/null | head -n 1) || true
    [ -z "$id" ] || break
    sleep 0.1
  done
  echo "$id"
}
home() { # TITLE of a window, which is moved to where the picture begins
  xdotool windowmove "$(find_window "$1")" 0 0
  sleep 0.5
}
fill() { # WINDOW, as large as the pictures
  xdotool windowmove "$1" 0 0 windowsize "$1" 1200 900
  sleep 0.5
  xdotool windowfocus "$1"
  sleep 0.3
}
close() {
  kill "$viewer"
  wait "$viewer" 2>/dev/null || true
  viewer=
}
shoot() { # [WINDOW], else all that stands where the window is
  if [ -n "${1:-}" ]; then import -window "$1" "$picture"; else import -window root -crop 1200x900+0+0 "$picture"; fi
}
look=light # whatever the desktop has
window() { # PICTURE FILE [STEPS]; without a shoot among the steps the window is taken at their end
  wants "$1" || return 0
  rm -rf "$data"/{data,config,cache} # pages that were open come back otherwise
  mkdir -p "$data/config/Nivra/NivraReader"
  echo "appearance;general;list;$look;;" >"$data/config/Nivra/NivraReader/generalsettings.csv"
  picture=$images/$1.png
  "$NIVRA_VIEWER" --clean "$2" &
  viewer=$!
  away
  fill "$(find_window "CASE:")"
  sleep 1
  eval "${3:-}"
  case ${3:-} in *shoot*) ;; *) shoot ;; esac
  close
}
dark_window() { look=dark window "$@"; } # the same on a dark screen

# A display of our own: a number that is free now might be taken when it is asked for.
Xvfb -displayfd 3 -noreset -screen 0 1280x960x24 3>"$data/display" 2>/dev/null &
display=$!
until [ -s "$data/display" ]; do sleep 0.1; done
DISPLAY=:$(<"$data/display")
export DISPLAY

example=example/DE_H2/S5/S5.scen.jsn
first_view() { # NAME FILE
  window "$1-window" "$2" 'sleep 2'
  dark_window "$1-dark" "$2" 'sleep 2'
}
first_view example "$example"
! wants example || "$NIVRA_VIEWER" --export "$images/example.png" --width 1200 "$example"
dark_window dark "$example" 'go_to CS_Rehden_C1; press ctrl+i ctrl+0; sleep 1.5'
for n in 11 40 135; do
  file=../shared/data/GasLib-$n/N1/N1.scen.jsn
  [ ! -f "$file" ] || first_view "gaslib-$n" "$file"
done
if wants large-window || wants large-dark; then
  "$(dirname "$NIVRA_VIEWER")/nivra-make-network" --elements 100000 "$data/large" >/dev/null
  first_view large "$data/large/large.geom.jsn"
  for look in window dark; do
    ! wants "large-$look" || mogrify -resize 800x "$images/large-$look.png"
  done
  look=light
fi
# The legend hides what is to be seen in pictures as small as these.
printf '%s\n' '[drawing]' 'legend=false' | cat example/DE_H2/plotsettings.ini - >"$data/no-legend.ini"
labels() { # NUMBER [OPTION...]
  ! wants "labels-$1" || "$NIVRA_VIEWER" --export "$images/labels-$1.png" --width 1000 --labels selected --style "$data/no-legend.ini" "${@:2}" "$example"
}
labels 1
labels 2 --extent 380000,5620000,620000,5800000
labels 3 --extent 403500,5722600,407300,5725450

window configure-draw "$example" 'press ctrl+d; sleep 1.5'
window context-menu "$example" 'go_to CS_Rehden_C1; press ctrl+0; sleep 1; press shift+F10; sleep 1'
window selection "$example" 'press ctrl+2; drag 420 400 720 640; sleep 1'
window findings "$example" 'run_command findings; press F8; sleep 2'
window balance "$example" 'run_command balance; sleep 1; press shift+F8; sleep 2; run_command balance; sleep 1'
window scenario "$example" 'run_command "scenario view"; sleep 0.5'
year=$data/root/year/DE_H2/2015-07-01/2015-07-01.scen.jsn
make_year() { # a scenario a day, with pressures that fall in winter
  local to=$data/root/year/DE_H2 day i
  mkdir -p "$to"
  find example/DE_H2 -maxdepth 1 -type f -exec cp {} "$to" \;
  for ((i = 0; i < 365; ++i)); do
    day=$(date -u -d "2015-01-01 + $i days" +%F)
    mkdir "$to/$day"
    cp example/DE_H2/S5/S5.scen.jsn "$to/$day/$day.scen.jsn"
    cp example/DE_H2/S5/S5.gas.jsn "$to/$day/$day.gas.jsn"
    cp example/DE_H2/S5/solverconfig.jsn "$to/$day"
    sed "s/\\bS5\\b/$day/g" example/DE_H2/S5/scenconfig.jsn >"$to/$day/scenconfig.jsn"
    awk -v i="$i" '{ factor = 1 - 0.04 * (1 + cos((i - 20) * 0.01721)) + 0.012 * sin(i * 1.7) * cos(i * 0.31)
      if (match($0, /"p":[0-9.]+/)) { p = substr($0, RSTART + 4, RLENGTH - 4) * factor
        $0 = substr($0, 1, RSTART + 3) sprintf("%.5f", p) substr($0, RSTART + RLENGTH) } print }' \
      example/DE_H2/S5/S5.res.jsn >"$to/$day/$day.res.jsn"
  done
}
if wants scenario-set; then
  make_year
  window scenario-set "$year" 'run_command "scenario set"; click 48 850; sleep 4; go_to N_Bremen; press ctrl+0; sleep 2; xdotool mousemove 820 640; sleep 1'
fi
window scenarios "$example" 'press ctrl+shift+r alt+Prior; sleep 1.5; press ctrl+shift+g; sleep 1.5'
window commands "$example" 'press ctrl+shift+p; sleep 0.5; say "edge press"; sleep 0.5'
window settings "$example" 'press ctrl+comma; sleep 1.5; press Down Down Down; shoot "$(find_window "^Settings")"'
window page "$example" 'press ctrl+alt+p; sleep 3; shoot "$(find_window "Page|Print")"'
window measure "$example" 'press ctrl+m; click 430 423; click 560 513; click 670 610; xdotool mousemove 800 660; sleep 1'
table='press ctrl+t; sleep 1; drag 600 600 600 500;'
window element-table "$example" "$table"'press ctrl+shift+l; say E_; click 100 758; press shift+Down shift+Down; sleep 1'
window element-table-groups "$example" "$table"'click 91 539; press Home Return; sleep 0.5; click 360 539; press Down Down Return; sleep 1; click 485 539; press c; click 80 639; press ctrl+Home; sleep 0.5'

window path-profile "$example" 'go_to N_Ellund; press ctrl+shift+p; say "profile from"; press Return; go_to N_Burghausen; press ctrl+shift+p; say "profile to h"; press Return; press ctrl+0; sleep 1.5'

# The walk through the tools, on a copy: a category is saved on the way.
walk=$data/walk
mkdir -p "$walk"
cp -r example/DE_H2 "$walk/"
walk_file=$walk/DE_H2/S5/S5.scen.jsn
find_pipes='press ctrl+f; sleep 0.5; press Tab Tab; say "^p"; press Tab Tab Tab Tab; say "abs(v@ELE)>10"; press Return; sleep 1.5; click 203 226;'
find_table="$find_pipes"'click 54 849; sleep 1; home "Table of Vector Values"; click 16 52; click 142 76; click 271 52; say v; press Return; sleep 1;'
window walk-1 "$walk_file" "$find_pipes"
window walk-2 "$walk_file" "$find_pipes"'run_command "element categories"; sleep 0.5; click 134 552; sleep 0.5; click 60 709 1 2; say "fast pipes"; press Return; click 1150 850'
window walk-3 "$walk_file" "$find_table"
window walk-4 "$walk_file" "$find_table"'click 143 16; sleep 1'
window walk-5 "$walk_file" 'run_command "layers editor"; click 34 215; click 34 277; sleep 1'
window walk-6 "$walk_file" 'go_to rlitz; press ctrl+u; press ctrl+0; sleep 1.5'

window subnet "$walk_file" 'go_to CS_Werne; press ctrl+shift+o; sleep 2
  fill "$(find_window Subassembly)"; press ctrl+t; sleep 1.5; press Down Down shift+Down; sleep 1'
window characteristics "$walk_file" 'go_to CS_Rehden_C1; press ctrl+shift+m; sleep 2'
window piston "$walk_file" 'go_to CS_Rimpar_C1; press ctrl+shift+m; sleep 2'

# What was opened before, and a file that changes while it is shown.
studies=/tmp/studies # a place that is read in the picture
mkdir "$studies" 2>/dev/null || { studies=$data/studies; mkdir "$studies"; }
trap 'kill $viewer $display 2>/dev/null || true; rm -rf "$data" "$studies"' EXIT
for network in 11 40 135; do
  [ ! -d "../shared/data/GasLib-$network" ] || cp -r "../shared/data/GasLib-$network" "$studies/"
done
if [ -d "$studies/GasLib-11" ]; then
  window reload-bar "$studies/GasLib-40/N1/N1.scen.jsn" 'echo >>"$studies/GasLib-40/N1/N1.scen.jsn"; sleep 3'
  ! wants reload-bar || mogrify -crop 1200x520+0+0 +repage "$images/reload-bar.png"
fi
if [ -d "$studies/GasLib-11" ] && wants start-page; then
  cp -r example/DE_H2 "$studies/"
  rm -rf "$data"/{data,config,cache}
  for file in "$studies"/GasLib-*/N1/N1.scen.jsn "$studies"/GasLib-*/*.geom.jsn "$studies/DE_H2/S5/S5.scen.jsn"; do
    "$NIVRA_VIEWER" "$file" & viewer=$!
    sleep 6
    close
  done
  rm -r "$studies/GasLib-11/N1" # one that is no longer there
  "$NIVRA_VIEWER" & viewer=$!
  fill "$(find_window "Nivra Reader")"
  sleep 3
  picture=$images/start-page.png
  shoot
  close
fi

if wants formats; then
  formats=$(mktemp -d)
  for format in png jpg bmp tif svg pdf ps; do
    "$NIVRA_VIEWER" --export "$formats/drawing.$format" --width 1200 "$example"
  done
  rsvg-convert "$formats/drawing.svg" -o "$formats/svg.png"
  pdftoppm -singlefile -r 100 -png "$formats/drawing.pdf" "$formats/pdf"
  gs -q -dNOPAUSE -dBATCH -sDEVICE=png16m -dTextAlphaBits=4 -dGraphicsAlphaBits=4 -r100 -sOutputFile="$formats/ps.png" "$formats/drawing.ps"
  montage -label png "$formats/drawing.png" -label jpg "$formats/drawing.jpg" -label bmp "$formats/drawing.bmp" -label tif "$formats/drawing.tif" \
    -label svg "$formats/svg.png" -label pdf "$formats/pdf.png" -label ps "$formats/ps.png" -tile 4x -geometry 300x225+4+4 "$images/formats.png"
  rm -rf "$formats"
fi

[ ${#made[@]} -gt 0 ] || { echo "makes no picture of the name ${wanted[*]}" >&2; exit 1; }
# Drawings have few colours: a table of 255 of them makes the files a third as large, and nobody sees it.
mogrify -depth 8 +dither -colors 255 -define png:compression-level=9 -strip "${made[@]}"
