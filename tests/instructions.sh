#!/usr/bin/env bash
# Counts the instructions of the hot operations, and compares them with the bars in
# instructions.txt.
set -euo pipefail
shopt -s inherit_errexit

usage() {
    cat <<'END'
usage: tests/instructions.sh --update
       tests/instructions.sh PROGRAM OPERATION
  --update  builds hot_operations for release, counts each of its operations and writes the bars

With the path of hot_operations, fails when the operation takes more than 20 % above its bar.
END
}

table=$(dirname "$0")/instructions.txt

# The instructions of one operation: count PROGRAM OPERATION TIMES. The environment is the same
# everywhere: without other locales, time zones and hash seeds, symbols looked up at the start, and
# the C library's choice of code the same for each processor.
count() {
    local profile total plain=-AVX_Fast_Unaligned_Load,-AVX2,-AVX,-BMI2,-ERMS,-FSRM,-SSSE3
    profile=$(dirname "$1")/instructions/$2.callgrind
    mkdir -p "$(dirname "$profile")"
    (
        cd /tmp
        umask 022
        env -i PATH=/usr/bin:/bin LC_ALL=C.UTF-8 TZ=UTC0 QT_HASH_SEED=0 LD_BIND_NOW=1 \
            GLIBC_TUNABLES=glibc.cpu.hwcaps="$plain" \
            valgrind -q --tool=callgrind --callgrind-out-file="$profile" \
            --collect-atstart=no --toggle-collect=Counted "$1" "$2" >&2
    )
    total=$(sed -n 's/^totals: //p' "$profile")
    [ "${total:-0}" -gt 0 ] || { echo "$2: nothing was counted" >&2; return 1; }
    echo $((total / $3))
}

update() {
    local program name times rows bar
    cd "$(dirname "$0")/.." >/dev/null
    table=tests/instructions.txt
    cmake --preset release >/dev/null
    cmake --build --preset release --target hot_operations
    program=$PWD/build/release/tests/hot_operations
    rows=$("$program" --list | while read -r name times; do
        bar=$(count "$program" "$name" "$times")
        printf '%-22s %d\n' "$name" "$bar"
    done)
    { grep '^#' "$table"; echo "$rows"; } >"$table.new"
    mv "$table.new" "$table"
    echo "$rows"
}

check() {
    local program=$1 name=$2 operations times bar now
    operations=$("$program" --list)
    if ! diff <(cut -d ' ' -f 1 <<<"$operations") <(grep '^[a-z]' "$table" | cut -d ' ' -f 1); then
        echo "The operations aren't those of $table; run tests/instructions.sh --update" >&2
        return 1
    fi
    times=$(sed -n "s/^$name //p" <<<"$operations")
    bar=$(sed -n "s/^$name  *//p" "$table")
    now=$(count "$program" "$name" "$times")
    echo "$name: $now instructions, bar $bar"
    if [ $((now * 100)) -gt $((bar * 120)) ]; then
        echo "$name has become over 20 % dearer. To see where it spends them:" >&2
        echo "  callgrind_annotate $(dirname "$program")/instructions/$name.callgrind" >&2
        return 1
    fi
    if [ $((now * 100)) -lt $((bar * 80)) ]; then
        echo "$name has become over 20 % cheaper: tests/instructions.sh --update lowers the bar"
    fi
}

case $#:${1:-} in
    1:--update) update ;;
    1:--help) usage ;;
    2:*) check "$@" ;;
    *) usage >&2; exit 2 ;;
esac
