#!/usr/bin/env bash
# Prints README's table of the samples under each order: how good the order is, and the processor's time that reading,
# making and writing took.
# The median of 5 seeds, at the defaults of each order but for 2000 generations of 50 variants of the genetic one;
# a search without an end gets Ctrl+C after 20 seconds.
# Run after a build: docs/orders-table.sh > table.md
set -euo pipefail
cd "$(dirname "$0")/.."
cli=${DORVAN_CLI:-build/dorvan-cli}
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
export LC_ALL=C TIMEFORMAT="%U %S"

samples=("iris euclidean" "USArrests euclidean" "Townships jaccard" "Munsingen jaccard" "airquality czekanowski"
    "quakes250 euclidean")

# The third of five numbers, one a line.
median() { sort -g | sed -n 3p; }

value() { sed -n "s/^$1: //p" "$2"; }

# The names in the order in which a document lists them.
names() { sed -n '/^\[RECORD_LABEL\]/,/^\r*$/p' "$1"; }

# make SEED: the figures of one run in $folder/SEED.info and $folder/SEED.seconds
make() {
    local options=(--measure "$measure" --order "$order" --seed "$1")
    [ "$order" = genetic ] && options+=(--generations 2000 --variants 50)
    { time timeout --foreground -s INT 20 "$cli" diagram "samples/$sample.mdt" "$folder/made.dgr" "${options[@]}" \
        2>>"$folder/log" || [ $? -eq 124 ]; } 2>"$folder/time"
    awk '{ printf "%.2f\n", $1 + $2 }' "$folder/time" >"$folder/$1.seconds"
    "$cli" info "$folder/made.dgr" >"$folder/$1.info"
    cmp -s <(names "$folder/made.dgr") <(names "samples/$sample.mdt") && kept=$((kept + 1)) || true
}

echo "| sample | measure | order | path length | F | UM | anti-Robinson events | seconds | kept the sheet's order |"
echo "| --- | --- | --- | ---: | ---: | ---: | ---: | ---: | ---: |"
for line in "${samples[@]}"; do
    read -r sample measure <<<"$line"
    for order in ${DORVAN_ORDERS:-none simple genetic ravelin best}; do
        kept=0
        for seed in 1 2 3 4 5; do make $seed; done
        row="| $sample | $measure | $order |"
        for key in "path length" F "UM coefficient" "anti-Robinson events"; do
            row+=" $(for seed in 1 2 3 4 5; do value "$key" "$folder/$seed.info"; done | median) |"
        done
        seconds=$(cat "$folder"/[1-5].seconds | median)
        case $order in genetic | ravelin) share="$kept of 5" ;; *) share= ;; esac
        echo "$row $seconds | $share |"
    done
done
