#!/usr/bin/env bash
# The portable folder brings all that its programs load, but for what its README leaves to the system.
#   portable_test.sh BUILD_FOLDER
set -euo pipefail
build=$1
root=$(mktemp -d)
trap 'rm -rf "$root"' EXIT
install_part() { cmake --install "$build" --component "$1" --prefix "$2" >/dev/null; }
folder="$root/a stick"
install_part program "$folder/program"
install_part data "$folder/program"
install_part portable "$folder"

# A new customer's folder, as the window makes it.
mkdir "$folder/program/CAFE"
cp "$folder"/program/{velmar.mdb,setup.ini} "$folder/program/CAFE/"
cd /
env -i ASAN_OPTIONS=detect_leaks=0 LD_DEBUG=files LD_DEBUG_OUTPUT="$root/loaded" \
  "$folder/program/norvane-shop" report CAFE pluprice --pdf "$root/prices.pdf"
[ -s "$root/prices.pdf" ]
grep -q "data:image/png;base64," "$folder/program/user-guide.html" # with its pictures

# Also what only the window and its plugins load.
export LD_LIBRARY_PATH=$folder/libraries
loaded=$(sed -n 's/.*calling init: //p' "$root"/loaded.*; ldd "$folder/program/norvane" "$folder"/plugins/*/*.so |
  sed -n 's/.* => \([^(]*\).*/\1/p')
foreign=$(grep -v "^$folder/\(program/../\)\?\(libraries\|plugins\)/" <<<"$loaded" |
  grep -vE '/(ld-linux-[^/]*|lib(c|m|resolv|X11|X11-xcb|xcb|Xau|Xdmcp|bsd|md|fontconfig|freetype|expat|png16|brotli[a-z]*|z))\.so' |
  sort -u || true)
if [ -n "$foreign" ]; then
  echo "The portable folder does not bring:" "$foreign" >&2
  exit 1
fi
for expected in libQt6Core libQt6XcbQpa libcups plugins/platforms/libqoffscreen; do
  grep -q "$expected" <<<"$loaded" || { echo "$expected was not loaded" >&2; exit 1; }
done
