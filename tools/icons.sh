#!/usr/bin/env bash
# Draws the icons in packaging/icons anew from packaging/verandis.svg.
source "$(dirname "${BASH_SOURCE[0]}")/common.sh"

need_packages librsvg2-bin
for size in 16 32 48 128 256; do
    rsvg-convert -w "$size" -h "$size" packaging/verandis.svg -o "packaging/icons/verandis-$size.png"
done
