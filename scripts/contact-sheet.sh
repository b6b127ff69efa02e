#!/usr/bin/env bash
# Recreates docs/images/screens-N.png: every screen of the menu on a database filled from a register of its
# model. Single pictures of each screen, for every model, are in build/contact-sheet/single/ afterwards.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/install-packages.sh
cmake --preset ci
cmake --build --preset ci --target contact_sheet
sheets=build/contact-sheet
rm -rf "$sheets"
mkdir -p "$sheets"
ASAN_OPTIONS="${ASAN_OPTIONS:-detect_leaks=0}" build/ci/scripts/contactsheet/contact_sheet "$sheets"
rm -f docs/images/screens-*.png
cp "$sheets"/screens-*.png docs/images/
ls -l docs/images/screens-*.png
