#!/usr/bin/env bash
# Installs what is missing, builds the program, stages it with a demo bank of three registers and a customer to look
# at, and starts it.
#   --no-start   stop before the start
#   --fresh      remake the program folder (customers included) and the bank
set -euo pipefail
cd "$(dirname "$0")"

start=yes
fresh=
for option in "$@"; do
  case "$option" in
    --no-start) start=no ;;
    --fresh) fresh=--fresh ;;
    *) echo "usage: ./run.sh [--no-start] [--fresh]" >&2; exit 2 ;;
  esac
done

scripts/install-packages.sh
cmake --preset release
cmake --build --preset release

app=build/app
bank=build/registers
if [ -n "$fresh" ]; then
  rm -rf "$app" "$bank"
fi
mkdir -p "$app"
cmake --install build/release --prefix "$app" >/dev/null
build/release/tools/makebank "$bank" --registers 3 $fresh
# The tools find the bank through this file beside them.
[ -f "$app/registers.ini" ] || printf '[Bank]\r\nFolder=../registers\r\n' > "$app/registers.ini"

# A customer with the sales of thirteen months, and a day on the registers that waits to be collected.
if [ ! -d "$app/DEMO CAFE" ]; then
  echo "Making the customer DEMO CAFE and its sales of thirteen months (once, up to 20 s) ..."
  scratch=/dev/shm
  [ -w "$scratch" ] || scratch=build
  if build/release/scripts/demoshop/demo_shop "$app" --tools build/release/tools --scratch "$scratch"; then
    build/release/tools/ringsales "$bank" --tickets 30 >/dev/null
  else
    echo "DEMO CAFE could not be made; the program works without it." >&2
  fi
fi

echo "Staged: $app (program, customer DEMO CAFE), $bank (three registers)"
echo "To ring a day's sales on them: build/release/tools/ringsales $bank"
[ "$start" = yes ] || exit 0
if [ -z "${DISPLAY:-}" ] && [ -z "${WAYLAND_DISPLAY:-}" ] && [ -z "${QT_QPA_PLATFORM:-}" ]; then
  echo "There is no display to show the program on (DISPLAY is not set)." >&2
  exit 1
fi
cd "$app"
exec ./norvane
