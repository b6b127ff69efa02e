#!/usr/bin/env bash
# Installs what is missing, builds everything with sanitizers and runs all tests. Arguments go to ctest (-R name).
set -euo pipefail
cd "$(dirname "$0")"

scripts/install-packages.sh --packages
cmake --preset ci
cmake --build --preset ci
# Widgets keep caches until the process ends; what the toolkit itself keeps is not ours to report.
export ASAN_OPTIONS="${ASAN_OPTIONS:-detect_leaks=0}"
export UBSAN_OPTIONS="${UBSAN_OPTIONS:-print_stacktrace=1}"
ctest --preset ci "$@"
