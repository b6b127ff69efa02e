#!/usr/bin/env bash
# usage: scripts/fuzz.sh [--seconds N | --runs N] [--jobs N] [--seed N] [TARGET...]
# Builds the fuzz targets (all when none is named) and runs each for N seconds (60) or N inputs, --jobs at a
# time (2). With --seed a run can be repeated; without it, each run tries other inputs. New inputs are kept in
# build/fuzz-corpus, findings in build/fuzz-findings; build/fuzz-corpus/runs.txt has a line for every run.
# The exit code is 1 if there is a finding.
set -euo pipefail
cd "$(dirname "$0")/.."

limit=(-max_total_time=60)
jobs=2
targets=()
while [ $# -gt 0 ]; do
  case "$1" in
    --seconds) limit[0]="-max_total_time=$2"; shift 2 ;;
    --runs) limit[0]="-runs=$2"; shift 2 ;;
    --seed) limit+=("-seed=$2"); shift 2 ;;
    --jobs) jobs=$2; shift 2 ;;
    -*) echo "usage: scripts/fuzz.sh [--seconds N | --runs N] [--jobs N] [--seed N] [TARGET...]" >&2; exit 2 ;;
    *) targets+=("$1"); shift ;;
  esac
done

scripts/install-packages.sh --fuzz
[ -f build/fuzz/build.ninja ] || cmake --preset fuzz
if [ ${#targets[@]} -eq 0 ]; then
  cmake --build build/fuzz --target fuzz_targets
  while read -r name _; do targets+=("$name"); done < build/fuzz/fuzz/targets.txt
else
  cmake --build build/fuzz --target "${targets[@]/#/fuzz_}"
fi

mkdir -p build/fuzz-corpus build/fuzz-findings build/fuzz-logs
# The targets write a small file for each input: to memory where there is such a place.
scratch=$(mktemp -d -p "$([ -w /dev/shm ] && echo /dev/shm || echo "${TMPDIR:-/tmp}")")
trap 'rm -rf "$scratch"' EXIT

# The targets work in a separate folder, so paths are absolute.
run_target() {
  local name=$1 top=$PWD longest inputs=()
  longest=$(awk -v name="$name" '$1 == name { print $2 }' build/fuzz/fuzz/targets.txt)
  mkdir -p "build/fuzz-corpus/$name"
  for folder in "$top/build/fuzz-corpus/$name" "$top/build/fuzz/fuzz/seeds/$name" "$top/fuzz/regressions/$name"; do
    [ -d "$folder" ] && inputs+=("$folder")
  done
  [ ! -f "build/fuzz/fuzz/seeds/$name.dict" ] || inputs+=("-dict=$top/build/fuzz/fuzz/seeds/$name.dict")
  "build/fuzz/fuzz/fuzz_$name" "${inputs[@]}" "${@:2}" -max_len="$longest" -len_control=0 -timeout=20 -rss_limit_mb=2048 \
    -artifact_prefix="$top/build/fuzz-findings/$name-" -print_final_stats=1 > "build/fuzz-logs/$name.log" 2>&1 || true
}
export -f run_target
export TMPDIR=$scratch QT_QPA_PLATFORM=offscreen
export ASAN_OPTIONS="${ASAN_OPTIONS:-detect_leaks=0}"
export ASAN_SYMBOLIZER_PATH="${ASAN_SYMBOLIZER_PATH:-$(command -v llvm-symbolizer-16 || command -v llvm-symbolizer || true)}"
export UBSAN_OPTIONS="${UBSAN_OPTIONS:-print_stacktrace=1}"
printf '%s\n' "${targets[@]}" | xargs -P "$jobs" -I{} bash -c 'run_target "$@"' _ {} "${limit[@]}"

findings=0
printf '%-12s %12s %10s %10s  %s\n' target inputs "a second" "new units" finding
for name in "${targets[@]}"; do
  log=build/fuzz-logs/$name.log
  stat() { awk -v key="stat::$1:" '$1 == key { print $2 }' "$log"; }
  finding=$(sed -n 's/.*Test unit written to //p' "$log" | head -n 1)
  if [ -z "$finding" ] && [ -z "$(stat number_of_executed_units)" ]; then
    finding="no result, see $log"
  fi
  [ -z "$finding" ] || findings=1
  line=$(printf '%-12s %12s %10s %10s  %s' "$name" "$(stat number_of_executed_units)" "$(stat average_exec_per_sec)" \
    "$(stat new_units_added)" "${finding:--}")
  echo "$line"
  echo "$(date -u +%FT%TZ) $(git rev-parse --short HEAD 2>/dev/null || echo -) $line" >> build/fuzz-corpus/runs.txt
done
exit "$findings"
