#!/bin/sh
# shoot.sh STATE|all FOLDER [WIDTH HEIGHT [TAB [ROW]]]: pictures of Corvex.exe in a state, or in each: splash, not-connected,
# connecting, connected, recording, playing, paused, preferences, about, editor; or, when named, no-port, dead-line, line-window;
# played: the example's drive to its end, driven@SECONDS: in the midst of it, surface: at its end a histogram as one, ROW quarters
# turned, on tab 3. FOLDER takes STATE-WIDTH.png; 650 by 500, tab 0, Output, and the first dashboard or list unless told otherwise.
set -eu
. "$(dirname "$0")/desktop-folder.sh"
[ $# -ge 2 ] || { sed -n '2,5s/^# //p' "$0" >&2; exit 2; }
state=$1 width=${3:-650} height=${4:-500} tab=${5:-0} row=${6:-0}
mkdir -p "$2"
pictures=$(cd "$2" && pwd)
export WINEPREFIX="${WINEPREFIX:-$root/build/wine/shoot}" CORVEX_DESKTOP=1920x1080
take_program "$root/build/shoot"
end_prefix_at_exit
"$root/tools/with-display.sh" "$CORVEX_DESKTOP" "$root/tools/with-engines.py" "$native/corvex-sim" "$root/tools/wine-run.sh" \
    "$windows/corvex-drive.exe" shoot "$(windows_name "$root/build/shoot")" "$pictures" "$state" "$width" "$height" "$tab" "$row"
