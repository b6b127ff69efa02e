#!/usr/bin/env bash
# Installs what building and running the program needs on Debian 12, if anything is missing.
#   --checks   also what .ci/run and scripts/mutate.py check the sources with, and a print server for a test's own queue
#   --clang    also the compiler of the preset clang
#   --packages also what ./package.sh makes packages with
#   --fuzz     also what the preset fuzz needs: that compiler, libFuzzer and its sanitizers
set -euo pipefail

packages=(
  g++ cmake ninja-build ccache git
  qt6-base-dev qt6-serialport-dev libgl-dev
  libsqlitecpp-dev libsqlite3-dev libxlsxwriter-dev libqpdf-dev libminizip-dev zlib1g-dev libpqxx-dev mdbtools-dev
  lowdown
  poppler-utils unzip xvfb dbus-daemon at-spi2-core
  libgtest-dev libgmock-dev libbenchmark-dev postgresql-15
  fonts-dejavu-core fonts-liberation
)
for option in "$@"; do
  case "$option" in
    --checks) packages+=(clang-format clang-tidy cups-daemon cups-client python3) ;;
    --clang) packages+=(clang-16) ;;
    --packages) packages+=(dpkg-dev file patchelf) ;;
    --fuzz) packages+=(clang-16 libclang-rt-16-dev) ;;
    *) echo "usage: scripts/install-packages.sh [--checks] [--clang] [--packages] [--fuzz]" >&2; exit 2 ;;
  esac
done

missing=()
for package in "${packages[@]}"; do
  if ! dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null | grep -qx installed; then
    missing+=("$package")
  fi
done
[ ${#missing[@]} -eq 0 ] && exit 0

echo "Installing: ${missing[*]}"
as_root=()
if [ "$(id -u)" -ne 0 ]; then
  as_root=(sudo)
fi
# The tests start a separate PostgreSQL: its package need not create and start one for the whole system.
no_server=/etc/postgresql-common/createcluster.d/norvane-build.conf
"${as_root[@]}" mkdir -p "${no_server%/*}"
echo "create_main_cluster = false" | "${as_root[@]}" tee "$no_server" >/dev/null
trap '"${as_root[@]}" rm -f "$no_server"' EXIT
"${as_root[@]}" apt-get update -q
"${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -q --no-install-recommends "${missing[@]}"
