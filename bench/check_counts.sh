#!/usr/bin/env bash
# Counts the instructions of fixed pieces of the game's work, and compares them with those in bench/counts.txt.
#   bench/check_counts.sh [BUILD_FOLDER]            fails when one is off by more than a tenth, either way
#   bench/check_counts.sh [BUILD_FOLDER] --print    prints the counts, for counts.txt
# Ends with 77 when the program was built by another compiler than the counts were taken with. Needs valgrind.
set -u
cd "$(dirname "$0")/.." || exit 1
counts=${1:-build}/counts

# Prints the number of instructions that one piece of work takes.
instructions() {
    valgrind --tool=callgrind --callgrind-out-file=/dev/null --toggle-collect=measured_work "$counts" "$1" 2>&1 |
        sed -n 's/^.*Collected : \([0-9]*\)$/\1/p'
}

compiler=$("$counts" --compiler) || exit 1
if [ "${2:-}" != --print ] && ! grep -qx "$compiler" bench/counts.txt; then
    echo "The counts are known for $(grep -x '[a-z]* [0-9]*' bench/counts.txt | head -n 1) only, not for $compiler."
    exit 77
fi

status=0
while read -r work expected; do
    found=$(instructions "$work")
    if [ "${2:-}" = --print ]; then
        echo "$work $found"
    elif [ $((${found:-0} * 10)) -lt $((expected * 9)) ] || [ $((found * 10)) -gt $((expected * 11)) ]; then
        echo "$work takes ${found:-no} instructions instead of $expected"
        status=1
    fi
done < <(grep -E '^(start|drops|deal|undo|relayout) ' bench/counts.txt)
exit $status
