#!/usr/bin/env bash
# Prints README's table of the samples under each order: how good the order is, and the time that making it took.
# Run after a build, on an otherwise idle machine: docs/orders-table.sh > table.md
set -euo pipefail
cd "$(dirname "$0")/.."
cli=build/dorvan-cli
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
export LC_ALL=C

# sample, measure, coefficient that spreads its distances over the bytes of the Ravelin search
samples=("iris euclidean 30" "USArrests euclidean 0.8" "Townships jaccard 200" "Munsingen jaccard 200"
    "airquality czekanowski 3" "quakes250 euclidean 0.4")

value() { sed -n "s/^$1: //p" <<<"$2"; }

echo "| sample | measure | order | path length | F | UM | anti-Robinson events | seconds |"
echo "| --- | --- | --- | ---: | ---: | ---: | ---: | ---: |"
for line in "${samples[@]}"; do
    read -r sample measure coefficient <<<"$line"
    for order in none simple genetic ravelin; do
        options=(--measure "$measure" --order "$order" --seed 1)
        [ $order = genetic ] && options+=(--generations 2000 --variants 50)
        [ $order = ravelin ] && options+=(--matrix-conversion-coefficient "$coefficient")
        start=$(date +%s.%N)
        $cli diagram "samples/$sample.mdt" "$folder/made.dgr" "${options[@]}"
        seconds=$(awk -v a="$start" -v b="$(date +%s.%N)" 'BEGIN { printf "%.2f", b - a }')
        info=$($cli info "$folder/made.dgr")
        echo "| $sample | $measure | $order | $(value 'path length' "$info") | $(value F "$info") |" \
            "$(value 'UM coefficient' "$info") | $(value 'anti-Robinson events' "$info") | $seconds |"
    done
done
