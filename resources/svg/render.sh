#!/bin/sh
# Renders the pictures in ../pictures from the SVG sources here and from the
# Tango icon theme (Debian: apt-get install tango-icon-theme librsvg2-bin imagemagick).
# Usage: sh render.sh [output folder, default ../pictures]
set -e
here=$(cd "$(dirname "$0")" && pwd)
out=${1:-$here/../pictures}
tango=/usr/share/icons/Tango

# drawn for this project
for name in add:addpng_32x32 delete:deletepng_32x32 page_accept:page_acceptpng_32x32 \
            chart:chartpng_32x32; do
    rsvg-convert -w 32 -h 32 "$here/${name%%:*}.svg" -o "$out/${name#*:}.png"
done
rsvg-convert -w 17 -h 15 "$here/stopSearch.svg" -o "$out/stopSearch.png"
rsvg-convert -w 180 -h 24 "$here/searchMe5.svg" -o "$out/searchMe5.png"
# opaque, but kept RGBA like the other pictures
rsvg-convert -w 64 -h 29 "$here/bottomLeopard2.svg" | convert png:- -strip -define png:exclude-chunks=date,time -define png:color-type=6 "$out/bottomLeopard2.png"

# from the Tango icon theme 0.8.90
cp "$tango/32x32/apps/accessories-text-editor.png" "$out/editpng_32x32.png"
cp "$tango/32x32/actions/go-next.png" "$out/nextpng_32x32.png"
cp "$tango/32x32/apps/accessories-calculator.png" "$out/calculatorpng_32x32.png"
cp "$tango/32x32/categories/applications-system.png" "$out/processpng_32x32.png"
rsvg-convert -w 40 -h 40 "$tango/scalable/devices/printer.svg" -o "$out/printer.png"
rsvg-convert -w 36 -h 36 "$tango/scalable/devices/printer.svg" -o "$out/printer36.png"

# the application's icon for the desktop, at the sizes of the hicolor theme
for size in 16 24 32 48 64 128 256; do
    mkdir -p "$out/../icons/hicolor/${size}x${size}/apps"
    rsvg-convert -w $size -h $size "$here/bookIcon.svg" | convert png:- -strip -define png:exclude-chunks=date,time \
        "$out/../icons/hicolor/${size}x${size}/apps/app.quillmark.Quillmark.png"
done
