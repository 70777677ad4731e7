#!/bin/sh
# shoot-all.sh [NAME...]: makes the pictures of README and guide anew, or those of these names; needs ImageMagick. Reckon with
# half a minute for each. Look at every one before it is committed.
set -eu
root=$(cd "$(dirname "$0")/.." && pwd)
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT

wanted="$*"

# picture NAME STATE WIDTH HEIGHT [TAB [ROW]]: docs/images/NAME.png, in few colours, as a window has no more.
picture() {
    name=$1 state=$2 width=$3 height=$4 tab=${5:-0} row=${6:-0}
    case " $wanted " in *" $name "* | "  ") ;; *) return 0 ;; esac
    "$root/tools/shoot.sh" "$state" "$folder" "$width" "$height" "$tab" "$row" >/dev/null
    convert "$folder/${state%@*}-$width.png" -strip -dither None -colors 64 -define png:compression-level=9 "PNG8:$root/docs/images/$name.png"
    printf '%s.png: %s bytes\n' "$name" "$(wc -c <"$root/docs/images/$name.png")"
}

picture dash driven@107.5 900 660 1
picture output connected 650 500
picture monitors driven@110 900 660 4
picture histograms played 760 440 3
picture surface surface 900 660 3 1
picture start not-connected 650 500
picture connecting connecting 650 500
picture recording recording 650 500
picture lists driven@107.5 650 500 2
picture preferences preferences 650 500
picture editor editor 650 500
