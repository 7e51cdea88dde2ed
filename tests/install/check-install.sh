#!/bin/sh
# Installs the build into a temporary folder, as a package would under /usr, and
# checks what a desktop looks for there; runs the desktop's own validators where
# they are installed.
# Usage: check-install.sh BUILD-FOLDER VERSION
set -eu
build=$1
version=$2
id=app.quillmark.Quillmark
dest=$(mktemp -d)
trap 'rm -rf "$dest"' EXIT
DESTDIR=$dest cmake --install "$build" --prefix /usr >/dev/null
root=$dest/usr
fail() { echo "$*" >&2; exit 1; }

for file in bin/quillmark bin/quillmark-cli libexec/quillmark/quillmark-draw; do
    [ -x "$root/$file" ] || fail "no program $file"
done
# The command line finds its drawing half where it was installed: the refusal
# of an unknown ledger comes from there.
refusal=$("$root/bin/quillmark-cli" --data "$dest" print Nobody --what both --pdf "$dest/out.pdf" 2>&1 || true)
case $refusal in
    *"no ledger named"*) ;;
    *) fail "the installed command line didn't hand a print over: $refusal" ;;
esac
desktop=$root/share/applications/$id.desktop
metainfo=$root/share/metainfo/$id.metainfo.xml
[ -f "$desktop" ] || fail "no $desktop"
[ -f "$metainfo" ] || fail "no $metainfo"
grep -qx "Icon=$id" "$desktop" || fail "the menu entry names another icon"
grep -q "<launchable type=\"desktop-id\">$id.desktop</launchable>" "$metainfo" || fail "no launchable"
grep -q "<release version=\"$version\"" "$metainfo" || fail "the release is not $version"

# Each icon is a PNG of its folder's size: width and height stand in bytes 17 to 24,
# big-endian.
for size in 16 24 32 48 64 128 256; do
    icon=$root/share/icons/hicolor/${size}x${size}/apps/$id.png
    [ -f "$icon" ] || fail "no icon at $size"
    dimensions=$(od -An --endian=big -tu4 -j16 -N8 "$icon" | tr -s ' ' | sed 's/^ //')
    [ "$dimensions" = "$size $size" ] || fail "the icon at $size is $dimensions"
done

if command -v desktop-file-validate >/dev/null; then
    desktop-file-validate "$desktop"
fi
if command -v appstreamcli >/dev/null; then
    appstreamcli validate --no-net "$metainfo"
fi
