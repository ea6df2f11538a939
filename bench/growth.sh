#!/usr/bin/env bash
# How start, painting, drags and memory grow with the screen: a table of screens of five widths, at one and at two
# device pixels for a pixel of the board. Fails when one of them grows faster than the number of pixels.
# Needs the programs that bench/run builds.
set -u
cd "$(dirname "$0")/.." || exit 1
. scripts/setup.sh
folder=$(mktemp -d)
trap 'stop_virtual_display; rm -rf "$folder"' EXIT

columns="start_ms memory_kib full_paint_ms full_paint_ratio drag_ms drag_processor_ms"
# shellcheck disable=SC2086
printf '%-14s' screen scale $columns
echo
for scale in 1 2; do
    for width in 800 1280 1920 2560 3840; do
        size=${width}x$((width * 3 / 4))
        figures=$folder/$width-$scale
        start_virtual_display "$size" || exit 1
        {
            QT_SCALE_FACTOR=$scale build/start_up 3 build/tarnwick --store "$folder/store" -- build/empty_window
            build/paint "$width" $((width * 3 / 4)) $scale
            build/drag $scale 1
        } >"$figures" 2>"$folder/errors" || { cat "$folder/errors" >&2; exit 1; }
        stop_virtual_display
        printf '%-14s' "$size" "$scale"
        for column in $columns; do
            printf '%-14s' "$(sed -n "s/^$column //p" "$figures")"
        done
        echo
    done
done

# Beside the pixels grow the time to fill an image: memory has its own ways. Painting is compared with that.
status=0
for scale in 1 2; do
    for column in start_ms memory_kib full_paint_ratio drag_ms drag_processor_ms; do
        for width in 1280 1920 2560 3840; do
            small=$(sed -n "s/^$column //p" "$folder/800-$scale")
            large=$(sed -n "s/^$column //p" "$folder/$width-$scale")
            awk -v small="$small" -v large="$large" -v width="$width" \
                'BEGIN { exit !(large / small > (width / 800) ^ 2) }' || continue
            echo "$column grows faster than the pixels, at $width pixels and scale $scale"
            status=1
        done
    done
done
exit $status
