#!/bin/sh
# with-sim.sh SIMULATOR DEFINITION LINK COMMAND...: runs COMMAND with a native simulator behind LINK, a Wine COM port for
# instance, and returns its status. SIM_OPTIONS holds further options of the simulator.
set -eu
simulator=$1 definition=$2 link=$3
shift 3
mkdir -p "$(dirname "$link")"
rm -f "$link"
# shellcheck disable=SC2086
"$simulator" "$definition" --link "$link" ${SIM_OPTIONS:-} >/dev/null &
sim=$!
trap 'kill -INT $sim 2>/dev/null; wait $sim 2>/dev/null || true' EXIT
tries=0
until [ -e "$link" ]; do
    tries=$((tries + 1))
    if [ $tries -gt 500 ] || ! kill -0 $sim 2>/dev/null; then echo "the simulator did not start" >&2; exit 1; fi
    sleep 0.01
done
"$@"
