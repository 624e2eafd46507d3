#!/usr/bin/env bash
# Counts the instructions of the hot operations and compares them with the bars in bars.txt.
set -euo pipefail
shopt -s inherit_errexit

usage() {
    cat <<'END'
usage: bench/instructions/count.sh --update
       bench/instructions/count.sh PROGRAM OPERATION
  --update   build hot-operations for release, count each of its operations and write the bars
  PROGRAM    the path of hot-operations
  OPERATION  count this operation; exit with status 1 if it exceeds its bar by over 20 %
END
}

bars=$(dirname "$0")/bars.txt

# Prints the instructions of one operation: count PROGRAM OPERATION TIMES. Fixes what would make the
# count differ between machines: locale, time zone, hash seed, late binding of symbols, and the code
# that the C library chooses for the processor.
count() {
    local profile total plain=-AVX_Fast_Unaligned_Load,-AVX2,-AVX,-BMI2,-ERMS,-FSRM,-SSSE3
    profile=$(dirname "$1")/$2.callgrind
    (
        cd /tmp
        umask 022
        env -i PATH=/usr/bin:/bin LC_ALL=C.UTF-8 TZ=UTC0 QT_HASH_SEED=0 LD_BIND_NOW=1 \
            GLIBC_TUNABLES=glibc.cpu.hwcaps="$plain" \
            valgrind -q --tool=callgrind --callgrind-out-file="$profile" \
            --collect-atstart=no --toggle-collect=Counted "$1" "$2" >&2
    )
    total=$(sed -n 's/^totals: //p' "$profile")
    [ "${total:-0}" -gt 0 ] || { echo "$2: callgrind counted no instructions" >&2; return 1; }
    echo $((total / $3))
}

update() {
    local program name times rows bar
    cd "$(dirname "$0")/../.." >/dev/null
    bars=bench/instructions/bars.txt
    scripts/build hot-operations
    program=$PWD/build/release/bench/instructions/hot-operations
    rows=$("$program" --list | while read -r name times; do
        bar=$(count "$program" "$name" "$times")
        printf '%-22s %d\n' "$name" "$bar"
    done)
    { grep '^#' "$bars"; echo "$rows"; } >"$bars.new"
    mv "$bars.new" "$bars"
    echo "$rows"
}

check() {
    local program name=$2 operations times bar now
    program=$(realpath "$1")
    operations=$("$program" --list)
    if ! diff <(cut -d ' ' -f 1 <<<"$operations") <(grep '^[a-z]' "$bars" | cut -d ' ' -f 1); then
        echo "bars.txt and hot-operations list different operations; run $0 --update" >&2
        return 1
    fi
    times=$(sed -n "s/^$name //p" <<<"$operations")
    bar=$(sed -n "s/^$name  *//p" "$bars")
    now=$(count "$program" "$name" "$times")
    echo "$name: $now instructions, bar $bar"
    if [ $((now * 100)) -gt $((bar * 120)) ]; then
        echo "$name takes over 20 % more than its bar. To see where:" >&2
        echo "  callgrind_annotate $(dirname "$program")/$name.callgrind" >&2
        return 1
    fi
    if [ $((now * 100)) -lt $((bar * 80)) ]; then
        echo "$name takes over 20 % less than its bar; $0 --update lowers it"
    fi
}

case $#:${1:-} in
    1:--update) update ;;
    1:--help) usage ;;
    2:*) check "$@" ;;
    *) usage >&2; exit 2 ;;
esac
