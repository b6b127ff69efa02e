#!/usr/bin/env bash
# Completing names of customers: each is completed whole, however it was begun, and nothing in it is run.
#   completion_test.sh BUILD_FOLDER
set -euo pipefail
program=$(realpath "$1")/command/norvane-shop
source "$(dirname "$(realpath "$0")")/../../scripts/norvane-shop.bash"
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
cd "$folder"
export NORVANE_FOLDER=$folder ASAN_OPTIONS=${ASAN_OPTIONS:-detect_leaks=0}
failures=0

for name in 'x$(touch y)z' 'DEMO CAFE' "O'Neill \`touch y\`" 'say "hi" $HOME' 'back\slash'; do
  mkdir "$name"
  : > "$name/velmar.mdb"
done

# expect TYPED NAME: Tab after TYPED gives a word that the shell reads as NAME.
expect() {
  COMP_WORDS=(norvane-shop collect "$1") COMP_CWORD=2
  _norvane_shop "$program" "$1" collect
  local quote=
  case $1 in [\"\']*) quote=${1:0:1} ;; esac
  local -a read_back
  eval "read_back=($quote${COMPREPLY[0]:-}$quote)"
  if [ "${#COMPREPLY[@]}" -ne 1 ] || [ "${read_back[*]}" != "$2" ]; then
    echo "FAILED: $1 was completed to ${COMPREPLY[*]:-nothing}, not to $2" >&2
    failures=$((failures + 1))
  fi
}

expect 'x' 'x$(touch y)z'
expect 'x\$\(t' 'x$(touch y)z'
expect '"x\$(' 'x$(touch y)z'
expect "'x\$(" 'x$(touch y)z'
expect 'DEMO\ C' 'DEMO CAFE'
expect '"DEMO C' 'DEMO CAFE'
expect "O\\'N" "O'Neill \`touch y\`"
expect "'O" "O'Neill \`touch y\`"
expect 'say\ \"h' 'say "hi" $HOME'
expect '"sa' 'say "hi" $HOME'
expect 'ba' 'back\slash'
expect '"ba' 'back\slash'
[ ! -e y ] || { echo "FAILED: a name was run" >&2; failures=$((failures + 1)); }
exit $((failures > 0))
