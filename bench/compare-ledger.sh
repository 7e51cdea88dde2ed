#!/usr/bin/env bash
# Times `quillmark-cli recalc` beside ledger-cli's `bal` on the same made-up book
# (200 accounts; GenerateBook writes it in both forms), as whole processes:
# medians of hyperfine, their ratio, and the peak memory of each.
#     bench/compare-ledger.sh [BUILD_FOLDER] [TRANSACTIONS...]
# The build folder defaults to build, the sizes to 100000 and 1000000.
set -euo pipefail
cd "$(dirname "$0")/.."
build=${1:-build}
shift || true
counts=("$@")
[ ${#counts[@]} -gt 0 ] || counts=(100000 1000000)

./tools/install-packages.sh hyperfine ledger time
cli=$PWD/$build/src/quillmark-cli
generate=$PWD/$build/bench/GenerateBook
for program in "$cli" "$generate"; do
    [ -x "$program" ] || { echo "$program is missing: build first" >&2; exit 1; }
done

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# The median of three runs of /usr/bin/time's peak resident set, in MiB.
peak() {
    for _ in 1 2 3; do
        /usr/bin/time -f %M "$@" 2>&1 >/dev/null | tail -1
    done | sort -n | sed -n 2p | awk '{ printf "%.1f", $1 / 1024 }'
}

printf '%-13s %10s %12s %12s %8s %13s %13s\n' transactions "book MB" "quillmark ms" "ledger ms" ratio \
    "quillmark MiB" "ledger MiB"
for n in "${counts[@]}"; do
    data=$work/data-$n
    journal=$work/book-$n.journal
    "$generate" "$data" "$n" "$journal"
    # Once, so that the book stands as the program stores a calculated ledger.
    "$cli" --data "$data" recalc Bench
    quillmark=("$cli" --data "$data" recalc Bench)
    ledger=(ledger -f "$journal" bal)
    hyperfine --style none --warmup 2 --runs 10 --export-csv "$work/times-$n.csv" \
        "${quillmark[*]@Q}" "${ledger[*]@Q}" >/dev/null
    # command,mean,stddev,median,...: the median of each, in ms.
    read -r ours theirs < <(awk -F, 'NR > 1 { printf "%s ", $4 * 1000 } END { print "" }' "$work/times-$n.csv")
    size=$(du -cb "$data/Quillmark/Books/  Bench"* | tail -1 | awk '{ printf "%.1f", $1 / 1e6 }')
    printf '%-13s %10s %12.1f %12.1f %7.1fx %13s %13s\n' "$n" "$size" "$ours" "$theirs" \
        "$(awk -v a="$theirs" -v b="$ours" 'BEGIN { print a / b }')" "$(peak "${quillmark[@]}")" "$(peak "${ledger[@]}")"
done
