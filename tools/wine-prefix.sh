#!/bin/sh
# wine-prefix.sh DIR [null|x11 [WIDTHxHEIGHT]]: makes a private Wine prefix with fixed fonts, colours, COM ports and desktop size.
set -eu
dir=$1
graphics=${2:-null}
desktop=${3:-1024x768}
wine=/usr/lib/wine/wine64
dlls=/usr/lib/x86_64-linux-gnu/wine/x86_64-windows
export WINEPREFIX="$dir" WINEARCH=win64 WINEDEBUG=-all LC_ALL=C.UTF-8
export WINEDLLOVERRIDES='mscoree,mshtml,winemenubuilder.exe='
unset DISPLAY

mkdir -p "$dir/drive_c/windows/Fonts" "$dir/tty"
# Debian's Wine does not look where Debian puts its fonts.
ln -sf /usr/share/wine/fonts/*.ttf /usr/share/wine/fonts/*.fon "$dir/drive_c/windows/Fonts/"
"$wine" wineboot -i </dev/null >/dev/null 2>&1
sed "s,@PREFIX@,$dir,; s,@GRAPHICS@,$graphics,; s,@DESKTOP@,$desktop," "$(dirname "$0")/prefix.reg.in" >"$dir/corvex.reg.new"
"$wine" regedit /S "Z:$dir/corvex.reg.new" </dev/null >/dev/null 2>&1
wineserver -k || true
wineserver -w
if [ -f "$dir/wineserver" ]; then
    rm -rf "/tmp/$(cat "$dir/wineserver")" "$dir/wineserver"
fi
# The prefix holds copies of Wine's own DLLs: links take 19 MB where copies take 695.
find "$dir/drive_c/windows" -type f | while read -r file; do
    original="$dlls/${file##*/}"
    if [ -f "$original" ] && cmp -s "$file" "$original"; then ln -sf "$original" "$file"; fi
done
# Last of all: this name tells that the prefix is whole.
mv "$dir/corvex.reg.new" "$dir/corvex.reg"
