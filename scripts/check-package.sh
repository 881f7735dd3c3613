#!/usr/bin/env bash
# Builds the Debian package, has lintian and the desktop's own checkers look at it, installs it into a bare Debian 12 by apt
# and runs it there as a user who may write nothing but his own home. NIVRA_PACKAGE_BUILD names another build folder, which is
# taken as it stands. Ends with 0 when all is well, 1 when something failed, 77 when this machine cannot try.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/bare-root.sh

fail() { echo "FAILED: $1" >&2; exit 1; }

if [ "${1:-}" != "--inside" ]; then
  for tool in lintian desktop-file-validate appstreamcli dpkg-shlibdeps; do
    command -v "$tool" >/dev/null || cannot "$tool is missing (scripts/install-dependencies.sh check)"
  done
  build=${NIVRA_PACKAGE_BUILD:-build/release}
  packages=${NIVRA_PACKAGES:-build/packages}
  [ -n "${NIVRA_PACKAGE_BUILD:-}" ] || scripts/build.sh release NivraViewer nivra-convert
  rm -rf "$packages"
  cpack -G DEB --config "$build/CPackConfig.cmake" -B "$PWD/$packages" >"/tmp/nivra-cpack-$$.log" 2>&1 ||
    { cat "/tmp/nivra-cpack-$$.log" >&2; fail "the package could not be built"; }
  rm -rf "/tmp/nivra-cpack-$$.log" "$packages/_CPack_Packages"
  echo "$(ls "$packages"/nivra-reader_*.deb) is built"
  lintian --allow-root --fail-on error,warning "$packages"/nivra-reader_*.deb || fail "lintian finds errors or warnings"
  desktop-file-validate packaging/*.desktop || fail "the desktop file is not valid"
  appstreamcli validate --no-net packaging/*.metainfo.xml >/dev/null || fail "the AppStream data are not valid"
  echo "lintian, desktop-file-validate and appstreamcli find nothing ($SECONDS s)"
  export NIVRA_PACKAGES=$packages
fi
inOwnNamespaces "$@"

makeBareRoot
cp "$NIVRA_PACKAGES"/nivra-reader_*.deb "$root/tmp/nivra-reader.deb"
inside "apt-get update -q && apt-get install -y -q --no-install-recommends /tmp/nivra-reader.deb" >"$folder/apt.log" 2>&1 ||
  { cat "$folder/apt.log" >&2; fail "apt does not install the package"; }
echo "Installed into a bare Debian 12 ($SECONDS s)"

inside "useradd --create-home user && install -d -m 700 -o user /run/user"
asUser() { inside "cd /home/user && runuser -u user -- env HOME=/home/user XDG_RUNTIME_DIR=/run/user $1"; }
example=/usr/share/nivra-reader/example/DE_H2/S5/S5.scen.jsn
asUser "NivraViewer --export example.png --width 1600 $example" || fail "no picture of the example"
# Not an empty sheet: the pixels of the drawing have many colours.
python3 - "$root/home/user/example.png" <<'PYTHON' || fail "the picture of the example shows nothing"
import struct, sys, zlib
data = open(sys.argv[1], "rb").read()
position, pixels, width = 8, b"", 0
while position < len(data):
    size, kind = struct.unpack(">I4s", data[position:position + 8])
    chunk = data[position + 8:position + 8 + size]
    if kind == b"IHDR":
        width, height = struct.unpack(">II", chunk[:8])
    if kind == b"IDAT":
        pixels += chunk
    position += size + 12
raw = zlib.decompress(pixels)
sys.exit(0 if width == 1600 and len(raw) > 1600 * 800 and len(data) > 40000 else 1)
PYTHON
asUser "NivraViewer --info $example" >"$folder/info.json" || fail "--info says nothing"
grep -q '"assembledSubnets": 6' "$folder/info.json" || fail "--info counts other subnets"
! grep -q 'net_subassemblies' "$folder/info.json" || fail "the templates of subnets are not found"
status=0
asUser "timeout 10 env QT_QPA_PLATFORM=offscreen NivraViewer $example" || status=$?
[ "$status" -eq 124 ] || fail "the window ends by itself with status $status"
asUser "grep -q '### ' .local/share/Nivra/NivraReader/NivraViewer.log" || fail "the window does not read the example"
asUser "nivra-convert --help" >/dev/null || fail "nivra-convert does not run"
asUser "nivra-convert $example S5.scen" >/dev/null || fail "nivra-convert does not convert"
status=0
asUser "/usr/share/nivra-reader/example/nightly-report.sh report" >/dev/null || status=$?
[ "$status" -eq 4 ] || fail "the nightly report ends with status $status instead of telling violated bounds"
for link in docs/user-guide.md docs/images/example-window.png example/DE_H2/DE_H2.geom.jsn net_subassemblies/default.geom; do
  asUser "test -r /usr/libexec/nivra-reader/$link" || fail "$link is not beside the program"
done
echo "Runs there ($SECONDS s)"

inside "apt-get install -y -q --no-install-recommends desktop-file-utils shared-mime-info xdg-utils libglib2.0-bin man-db" \
  >"$folder/apt.log" 2>&1 || { cat "$folder/apt.log" >&2; fail "the tools of a desktop cannot be installed"; }
inside "desktop-file-validate /usr/share/applications/org.nivra.NivraReader.desktop" || fail "the desktop file is not valid"
for file in a.geom a.geom.jsn a.scen a.scen.json; do
  asUser "sh -c 'echo a > $file'" # nothing at all has no type
  type=$(asUser "gio info -a standard::content-type $file" | sed -n 's/.*content-type: //p')
  case "$type" in application/x-nivra-*) ;; *) fail "$file is taken for $type" ;; esac
  opener=$(asUser "xdg-mime query default $type")
  [ "$opener" = org.nivra.NivraReader.desktop ] || fail "$type is opened by '$opener'"
done
for page in NivraViewer nivra-convert; do asUser "man -w $page" >/dev/null || fail "no man page of $page"; done
inside "apt-get remove -y -qq nivra-reader >/dev/null 2>&1" || fail "apt does not remove the package"
left=$(find "$root/usr" -iname '*nivra*' -printf '/usr/%P ')
[ -z "$left" ] || fail "removed, the package leaves behind: $left"
echo "The package is sound on a bare Debian 12 ($SECONDS s)"
