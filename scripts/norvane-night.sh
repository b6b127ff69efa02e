#!/bin/sh
# The night of all customers in a folder of the program: collects the sales of each, writes the day's report,
# and publishes to a chain's database if one is named. One customer's failure does not stop the next. Prints
# only failures, which cron mails; the exit code is then 1.
#
#   norvane-night.sh FOLDER REPORTS [CONNECTION]
#
# A second run stores and publishes nothing twice and writes the same reports again.
set -u
[ $# -ge 2 ] || { echo "usage: norvane-night.sh FOLDER REPORTS [CONNECTION]" >&2; exit 2; }
shop=$(dirname "$0")/norvane-shop
folder=$1
reports=$2
connection=${3:-}
failed=0

# attempt CUSTOMER WORD...: runs a command on a customer and reports a failure.
attempt() {
  customer=$1
  shift
  said=$("$shop" "$@" --folder "$folder" 2>&1) && return 0
  code=$?
  failed=1
  printf '%s: %s ended with %s\n%s\n\n' "$customer" "$1" "$code" "$said"
  return 1
}

# Sales count for the day on which they are collected.
day=$(date +%F)
mkdir -p "$reports" || exit 1
customers=$("$shop" customers --json --folder "$folder") || exit 1
names=$(printf '%s\n' "$customers" | sed -n 's/^ *"name": "\(.*\)",*$/\1/p')
while IFS= read -r customer; do
  [ -n "$customer" ] || continue
  # Sales that an earlier night stored and could not clear at all registers are cleared first.
  # Without its sales the report of the day would be wrong, and nobody would check it again.
  attempt "$customer" collect "$customer" --clear-first &&
    attempt "$customer" report "$customer" plusales --day "$day" --pdf "$(realpath "$reports")/$customer $day.pdf"
  [ -z "$connection" ] || attempt "$customer" publish "$customer" --to "$connection"
done <<END
$names
END
exit $failed
