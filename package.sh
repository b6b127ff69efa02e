#!/usr/bin/env bash
# Installs what is missing, builds the program and makes two packages of it in build/packages/: a portable folder that
# runs where it is unpacked, and a Debian package.
set -euo pipefail
cd "$(dirname "$0")"
if [ $# -gt 0 ]; then
  echo "usage: ./package.sh" >&2
  exit 2
fi

scripts/install-packages.sh --packages
cmake --preset release
cmake --build --preset release --target norvane norvane-shop template_database user_guide package_files
rm -rf build/packages
cpack --config build/release/CPackConfig.cmake
# The work folder of cpack, and checksums that are not needed.
rm -rf build/packages/_CPack_Packages
echo "Made:"
du -h build/packages/*
