#!/bin/sh
# with-heap-check.sh PROGRAM [ARGS]: runs a Windows test under Wine with every block of the heap checked as it is allocated and
# freed. Wine does so only while it traces the heap; the trace itself is thrown away, what it finds wrong is kept.
here=$(cd "$(dirname "$0")" && pwd)
# Into a file, not a pipe: whatever else Wine starts would hold the pipe open.
said=$(mktemp)
trap 'rm -f "$said"' EXIT
status=0
WINEDEBUG=-all,+heap "$here/wine-run.sh" "$@" >"$said" 2>&1 || status=$?
grep -av ':trace:heap:' "$said"
exit $status
