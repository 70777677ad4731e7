#!/bin/sh
# with-display.sh WIDTHxHEIGHT COMMAND...: runs COMMAND on a display of its own that nobody sees, and returns its status.
set -eu
size=$1
shift
folder=$(mktemp -d)
Xvfb -displayfd 3 -screen 0 "${size}x24" -nolisten tcp 3>"$folder/number" >"$folder/log" 2>&1 &
server=$!
trap 'kill $server 2>/dev/null || true; wait $server 2>/dev/null || true; rm -rf "$folder"' EXIT
tries=0
until [ -s "$folder/number" ]; do
    tries=$((tries + 1))
    if [ $tries -gt 1000 ] || ! kill -0 $server 2>/dev/null; then cat "$folder/log" >&2; exit 1; fi
    sleep 0.01
done
DISPLAY=":$(cat "$folder/number")" "$@"
