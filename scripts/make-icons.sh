#!/usr/bin/env bash
# Renders the application icon (desktop/icons/torvanbridge.svg) to the PNG sizes the
# desktop's icon theme and the window use. Run after changing the SVG; the PNGs are
# kept in the repository so that building needs no SVG renderer.
set -euo pipefail
top=$(cd "$(dirname "$0")/.." && pwd)
command -v rsvg-convert >/dev/null || { echo "needs rsvg-convert (apt-get install librsvg2-bin)" >&2; exit 1; }
for size in 16 24 32 48 64 128 256 512; do
    rsvg-convert -w "$size" -h "$size" "$top/desktop/icons/torvanbridge.svg" -o "$top/desktop/icons/torvanbridge-$size.png"
done
