#!/usr/bin/env bash
# The program installed as its package installs it, started by users with separate folders, through updates.
#   start_test.sh BUILD_FOLDER
set -euo pipefail
build=$1
root=$(mktemp -d)
trap 'rm -rf "$root"' EXIT
failures=0
export ASAN_OPTIONS=${ASAN_OPTIONS:-detect_leaks=0}

fail() {
  echo "FAILED: $*" >&2
  failures=$((failures + 1))
}
# expect TEXT COMMAND...: the command succeeds.
expect() {
  local text=$1
  shift
  "$@" || fail "$text"
}
links_to() { [ "$(readlink "$1")" = "$2" ]; }
is_absent() { [ ! -e "$1" ] && [ ! -L "$1" ]; }

install_part() { cmake --install "$build" --component "$1" --prefix "$2" >/dev/null; }
usr="$root/the system/usr"
shipped=$usr/share/norvane
dealers=$usr/local/lib/norvane
install_part system "$usr"
install_part data "$shipped"
install_part program "$usr/lib/norvane"
mkdir -p "$dealers"

export HOME="$root/home of a user"
unset XDG_DATA_HOME NORVANE_FOLDER
folder=$HOME/.local/share/norvane
shop() { "$usr/bin/norvane-shop" "$@"; }

# Nothing is made for somebody who only asks, or who works in another folder.
shop --help >/dev/null
shop customers --folder "$root" >/dev/null
expect "nothing made yet" is_absent "$folder"

# Two first starts at once.
shop customers >/dev/null 2>"$root/first" &
shop customers >/dev/null 2>"$root/second"
wait $!
expect "no complaint of two starts" cmp -s "$root/first" "$root/second"
expect "all that is shipped is linked" [ "$(ls "$folder")" = "$(ls "$shipped")" ]
expect "screens are links" links_to "$folder/PLU.scn" "$shipped/PLU.scn"
[ ! -s "$root/first" ] || fail "said: $(cat "$root/first")"

# A customer, an edited screen, one under a spelling of the user's own, a file and a dead link that are none of ours.
mkdir "$folder/CAFE"
cp "$shipped/velmar.mdb" "$shipped/setup.ini" "$folder/CAFE/"
cp --remove-destination "$shipped/PLU.scn" "$folder/PLU.scn"
cp "$shipped/Taxes.scn" "$folder/TAXES.SCN"
echo mine >"$folder/notes.txt"
ln -s /nowhere "$folder/stick"
ln -s "$shipped/Payrate.scn" "$folder/wages.scn"
edited=$(stat -c %i "$folder/PLU.scn")

# The update adds a screen, replaces one, and takes one away; the dealer brings a tool, and a screen for all users.
rm "$shipped/Group.scn"
echo new >"$shipped/Added.scn"
echo changed >>"$shipped/JobCode.scn"
cp "$shipped/Smode.scn" "$dealers/smode.scn"
printf '#!/bin/sh\n' >"$dealers/VELMARCOMM"
expect "the customer is listed" grep -q '^CAFE ' <(shop customers)
expect "the edited screen is kept" [ "$(stat -c %i "$folder/PLU.scn")" = "$edited" ]
expect "the user's spelling replaces the link" is_absent "$folder/Taxes.scn"
expect "the user's spelling is kept" [ -f "$folder/TAXES.SCN" ]
expect "the added screen is there" links_to "$folder/Added.scn" "$shipped/Added.scn"
expect "the new content is there" grep -q changed "$folder/JobCode.scn"
expect "what is gone is gone" is_absent "$folder/Group.scn"
expect "the dealer's screen goes first" links_to "$folder/smode.scn" "$dealers/smode.scn"
expect "the shipped one makes room" is_absent "$folder/Smode.scn"
expect "the dealer's tool is linked" links_to "$folder/VELMARCOMM" "$dealers/VELMARCOMM"
expect "a file of the user is kept" grep -q mine "$folder/notes.txt"
expect "a link of the user is kept" [ -L "$folder/stick" ]
expect "also one to our file" [ -L "$folder/wages.scn" ]
expect "the customer is whole" [ -s "$folder/CAFE/velmar.mdb" ]

# The dealer takes the screen back, the user the edited one.
rm "$dealers/smode.scn" "$folder/PLU.scn" "$folder/Added.scn" "$shipped/Added.scn"
rm "$folder/stick"
shop check CAFE >"$root/check" || fail "check: $(cat "$root/check")"
expect "the shipped screen is back" links_to "$folder/Smode.scn" "$shipped/Smode.scn"
expect "and the one that was edited" links_to "$folder/PLU.scn" "$shipped/PLU.scn"

# The window in a folder that the user names, started from anywhere.
named=$root/shared
cd /
NORVANE_FOLDER=$named QT_QPA_PLATFORM=offscreen "$usr/bin/norvane" &
window=$!
for ((tries = 0; tries < 200; tries++)); do
  [ "$(readlink "/proc/$window/cwd")" != "$named" ] || break
  sleep 0.1
done
expect "the window works in the named folder" [ "$(readlink "/proc/$window/cwd")" = "$named" ]
expect "which is made" links_to "$named/PLU.scn" "$shipped/PLU.scn"
kill "$window"
wait "$window" 2>/dev/null || true

# No way to make the folder: the program says so.
touch "$root/file"
code=0
said=$(NORVANE_FOLDER=$root/file/norvane shop customers 2>&1) || code=$?
expect "a folder that cannot be made is reported: $said" grep -qF "There is no folder $root/file/norvane." <<<"$said"
expect "and its code" [ "$code" = 2 ]

[ "$failures" = 0 ]
