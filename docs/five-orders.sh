#!/usr/bin/env bash
# Makes docs/images/five-orders.png: one sample under the five orders, each with its defaults, without numbers, names and
# legend. Run after a build; needs ImageMagick.
set -euo pipefail
cd "$(dirname "$0")/.."
cli=${DORVAN_CLI:-build/dorvan-cli}
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
export LC_ALL=C QT_QPA_PLATFORM=offscreen

sample=USArrests seed=2 records=50
cell=20 # pixels; numbers and names take five cells on the left, numbers one at the top
tiles=()
while IFS=: read -r order title; do
    "$cli" diagram "samples/$sample.mdt" "$folder/$order.dgr" --type greyscale --order "$order" --seed $seed
    "$cli" picture "$folder/$order.dgr" "$folder/$order.png"
    convert "$folder/$order.png" -crop "$((records * cell))x$((records * cell))+$((5 * cell))+$cell" +repage \
        -filter box -resize 330x330 -bordercolor '#444' -border 1 "$folder/$order-square.png"
    tiles+=(-label "$title" "$folder/$order-square.png")
done <<'END'
none:no well-ordered
simple:simple auto algorithm
genetic:simple genetic algorithm
ravelin:Ravelin genetic algorithm
best:Best order
END
montage -font Liberation-Sans -pointsize 15 "${tiles[@]}" -tile 3x -geometry +10+8 -background white \
    +dither -colors 64 -strip -define png:compression-level=9 docs/images/five-orders.png
