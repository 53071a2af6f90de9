#!/usr/bin/env bash
# Reads the headers of built programs and fails when one of the platform's mitigations is missing.
#   tests/hardening.sh debug|release PROGRAM...
# "debug" is for builds with sanitizers, without the compiler's own checks. OBJDUMP and READELF name other tools.
set -euo pipefail
kind=$1
shift
objdump=${OBJDUMP:-objdump}
readelf=${READELF:-readelf}
failures=0

# need PROGRAM WHAT PATTERN: one of the lines in $headers matches.
need() {
    grep -qE -- "$3" <<<"$headers" && return
    echo "$1: no $2" >&2
    failures=$((failures + 1))
}

for program in "$@"; do
    headers=$("$objdump" -x "$program")
    if grep -q 'file format pei-' <<<"$headers"; then
        need "$program" "random address (dynamic base)" 'DYNAMIC_BASE'
        need "$program" "relocations, without which the address is fixed" '\.reloc'
        need "$program" "data execution prevention" 'NX_COMPAT'
        ! grep -q 'pei-x86-64' <<<"$headers" || need "$program" "64-bit random address" 'HIGH_ENTROPY_VA'
        ! grep -q 'Time/Date.*20[0-9][0-9]$' <<<"$headers" ||
            { echo "$program: has the time of its build" >&2; failures=$((failures + 1)); }
        continue
    fi
    headers=$("$readelf" -WhldS --dyn-syms "$program")
    need "$program" "random address (PIE)" 'Type: +DYN '
    need "$program" "read-only relocations (RELRO)" 'GNU_RELRO'
    need "$program" "relocations at the start (BIND_NOW)" 'BIND_NOW|FLAGS_1.*NOW'
    need "$program" "non-executable stack" 'GNU_STACK +0x[0-9a-f]+ 0x[0-9a-f]+ 0x[0-9a-f]+ 0x[0-9a-f]+ 0x[0-9a-f]+ RW '
    if grep -qE '\(R(UN)?PATH\)' <<<"$headers"; then
        echo "$program: looks for libraries in folders of its own" >&2
        failures=$((failures + 1))
    fi
    if [ "$kind" = release ]; then
        need "$program" "stack protector" '__stack_chk_fail'
        need "$program" "checked library calls (fortify)" '__[a-z]+_chk'
    fi
done
[ "$failures" -eq 0 ]
