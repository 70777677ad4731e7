#!/bin/sh
# with-heap-check.sh PROGRAM [ARGS]: runs a Windows test under Wine with every block of the heap checked as it is allocated and
# freed. Wine does so only while it traces the heap; the trace itself is thrown away, what it finds wrong is kept.
here=$(cd "$(dirname "$0")" && pwd)
status=$(mktemp)
trap 'rm -f "$status"' EXIT
{ WINEDEBUG=-all,+heap "$here/wine-run.sh" "$@" 2>&1; echo $? >"$status"; } | grep -av ':trace:heap:'
exit "$(cat "$status")"
