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

# Twice-size variants "<name>@2x.png" for screens of two device pixels per point;
# Qt picks them up beside the pictures above. The 1x pictures drawn before their
# SVG sources existed (the book icons, the account markers) are not made again.
twice() { # twice SOURCE.svg NAME WIDTH HEIGHT
    rsvg-convert -w $(($3 * 2)) -h $(($4 * 2)) "$1" -o "$out/$2@2x.png"
}
for name in add:addpng_32x32 delete:deletepng_32x32 page_accept:page_acceptpng_32x32 \
            chart:chartpng_32x32; do
    twice "$here/${name%%:*}.svg" "${name#*:}" 32 32
done
twice "$here/stopSearch.svg" stopSearch 17 15
twice "$here/searchMe5.svg" searchMe5 180 24
rsvg-convert -w 128 -h 58 "$here/bottomLeopard2.svg" | convert png:- -strip -define png:exclude-chunks=date,time -define png:color-type=6 "$out/bottomLeopard2@2x.png"
twice "$tango/scalable/apps/accessories-text-editor.svg" editpng_32x32 32 32
twice "$tango/scalable/actions/go-next.svg" nextpng_32x32 32 32
twice "$tango/scalable/apps/accessories-calculator.svg" calculatorpng_32x32 32 32
twice "$tango/scalable/categories/applications-system.svg" processpng_32x32 32 32
twice "$tango/scalable/devices/printer.svg" printer 40 40
twice "$tango/scalable/devices/printer.svg" printer36 36 36
twice "$here/bookIcon.svg" bookIcon 16 16
twice "$here/bookIcon.svg" bookIcon64 64 64
twice "$here/bookIcon.svg" bookIcon128 128 128
twice "$here/bookIcon.svg" Book_Icon32 32 32
twice "$here/accountPlus.svg" accountPlus9 16 16
twice "$here/accountMinus.svg" accountMinus9 16 16

# the application's icon for the desktop, at the sizes of the hicolor theme
for size in 16 24 32 48 64 128 256; do
    mkdir -p "$out/../icons/hicolor/${size}x${size}/apps"
    rsvg-convert -w $size -h $size "$here/bookIcon.svg" | convert png:- -strip -define png:exclude-chunks=date,time \
        "$out/../icons/hicolor/${size}x${size}/apps/app.quillmark.Quillmark.png"
done
