#!/usr/bin/env bash
# Reads screens of the workbench aloud through the accessibility interface and compares what was said with the files
# beside this script, without the places on the screen.
#   tests/desktop/aloud/run.sh WORKBENCH
set -uo pipefail
here=$(cd "$(dirname "$0")" && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
failures=0

# reads FILE OPERATION [ARGUMENT...]
reads() {
    local expected=$here/$1
    shift
    dbus-run-session -- "$here/../../../scripts/read-aloud" "$program" --company "$work/demo.company" --show "$@" \
        2>"$work/log" | grep -v '^SpiRegistry' >"$work/said"
    if ! grep -q ' at [0-9]*,[0-9]*$' "$work/said"; then
        echo "$1: nothing was said that has a place on the screen."
        cat "$work/log"
        failures=1
    fi
    diff -u "$expected" <(sed -E 's/ at -?[0-9]+,-?[0-9]+$//' "$work/said") || failures=1
}

program=$1
reads terms.txt ShowTerms
reads vendor.txt ShowEditVendor 3
exit $failures
