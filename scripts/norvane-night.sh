#!/bin/sh
# norvane-night.sh FOLDER REPORTS [CONNECTION]: the night of all customers of a folder; prints what is left to do, which cron mails.
exec "$(dirname "$0")/norvane-shop" night --folder "${1:?}" --reports "${2:?}" ${3:+--to "$3"} >/dev/null
