#!/bin/sh
# run-desktop.sh: starts Corvex.exe with the example definition, in build/run/, with a simulated engine behind COM1. With a display
# it is the user's; without one a program works with it on a hidden display, tells how it went, and leaves a picture of each tab in
# build/run/.
set -eu
. "$(dirname "$0")/desktop-folder.sh"
folder=$root/build/run
export WINEPREFIX="$root/build/wine/run" CORVEX_DESKTOP=1024x768

settings() {
    printf 'lastadxpath=%s\r\ncomport=COM1\r\nloadlastdef=1\r\n' "$(windows_name "$folder/harrier-8192.adx")"
    printf 'winposx=40\r\nwinposy=30\r\nwinsizex=900\r\nwinsizey=660\r\n'
}

run_for_the_user() {
    [ -f "$folder/Settings.dat" ] || settings >"$folder/Settings.dat"
    echo "An engine is simulated behind COM1: press the back-quote key to scan." >&2
    cd "$folder"
    SIM_OPTIONS=--pace "$root/tools/with-sim.sh" "$native/corvex-sim" "$root/examples/harrier-8192.adx" \
        "$WINEPREFIX/tty/com1" "$root/tools/wine-run.sh" "$folder/Corvex.exe"
}

run_by_itself() {
    rm -f "$folder"/*.png "$folder"/*.xdl
    settings >"$folder/Settings.dat"
    "$root/tools/with-display.sh" "$CORVEX_DESKTOP" "$root/tools/with-engines.py" "$native/corvex-sim" "$root/tools/wine-run.sh" \
        "$windows/corvex-drive.exe" demo "$(windows_name "$folder")" "$folder"
}

take_program "$folder"
end_prefix_at_exit
if [ -n "${DISPLAY:-}" ]; then run_for_the_user; else run_by_itself; fi
