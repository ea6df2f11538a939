#!/usr/bin/env bash
# How start, painting, drags and memory grow with the screen: a table of screens of five widths, at one and at two
# device pixels for a pixel of the board. Fails when one of them grows faster than the number of pixels, seen from
# the smallest screen. The window is never smaller than 800 pixels of the board, which some screens are at scale 2.
# Needs the programs that bench/run builds.
set -u
cd "$(dirname "$0")/.." || exit 1
. scripts/setup.sh
folder=$(mktemp -d)
trap 'stop_virtual_display; rm -rf "$folder"' EXIT

# The widths at each scale, from the smallest.
widths_at() { if [ "$1" = 1 ]; then echo 800 1280 1920 2560 3840; else echo 1920 2560 3840; fi; }

columns="start_ms memory_kib full_paint_ms full_paint_ratio drag_ms drag_processor_ms"
# shellcheck disable=SC2086
printf '%-18s' screen scale $columns
echo
for scale in 1 2; do
    for width in $(widths_at $scale); do
        size=${width}x$((width * 3 / 4))
        figures=$folder/$width-$scale
        start_virtual_display "$size" || exit 1
        {
            QT_SCALE_FACTOR=$scale build/start_up 3 build/tarnwick --store "$folder/store" -- build/empty_window
            build/paint "$width" $((width * 3 / 4)) $scale
            build/drag $scale 1
        } >"$figures" 2>"$folder/errors" || { cat "$folder/errors" >&2; exit 1; }
        stop_virtual_display
        printf '%-18s' "$size" "$scale"
        for column in $columns; do
            printf '%-18s' "$(sed -n "s/^$column //p" "$figures")"
        done
        echo
    done
done

# Told but not judged is how painting compares with filling an image, which grows with the caches it outgrows.
status=0
for scale in 1 2; do
    base=$(widths_at $scale | cut -d' ' -f1)
    for column in start_ms memory_kib full_paint_ms drag_ms drag_processor_ms; do
        for width in $(widths_at $scale); do
            small=$(sed -n "s/^$column //p" "$folder/$base-$scale")
            large=$(sed -n "s/^$column //p" "$folder/$width-$scale")
            awk -v small="$small" -v large="$large" -v pixels="$width" -v base="$base" \
                'BEGIN { exit !(large / small > (pixels / base) ^ 2) }' || continue
            echo "$column grows faster than the pixels, at $width pixels and scale $scale"
            status=1
        done
    done
done
exit $status
