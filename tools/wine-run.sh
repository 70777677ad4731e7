#!/bin/sh
# wine-run.sh PROGRAM [ARGS]: runs a Windows program in the project's own prefix, made when it is not there.
here=$(cd "$(dirname "$0")" && pwd)
export WINEPREFIX="${WINEPREFIX:-$(dirname "$here")/build/wine/null}" WINEARCH=win64 LC_ALL=C.UTF-8 \
    WINEDEBUG="${WINEDEBUG:--all}" WINEDLLOVERRIDES='mscoree,mshtml,winemenubuilder.exe='
wine=/usr/lib/wine/wine64
mkdir -p "$WINEPREFIX"
# Wine's helpers inherit the standard error of whoever starts them first, and a test runner that waits for the end of that pipe
# would wait for them: so they are started here, apart from the program.
(
    flock 9
    [ -f "$WINEPREFIX/corvex.reg" ] || "$here/wine-prefix.sh" "$WINEPREFIX" "${CORVEX_GFX:-null}" "${CORVEX_DESKTOP:-1024x768}" 9>&-
    if wineserver -p </dev/null >/dev/null 2>&1 9>&-; then  # 0: we started it; 2: it runs already
        "$wine" wineboot </dev/null >/dev/null 2>&1 9>&-
        [ -z "${WINE_KEEPALIVE:-}" ] || "$wine" "$WINE_KEEPALIVE" </dev/null >/dev/null 2>&1 9>&-
    fi
) 9>"$WINEPREFIX/.lock"
case $1 in
*_test.exe)
    # A stack that overflows ends a program with 0 here. The test framework leaves this file behind then.
    TEST_PREMATURE_EXIT_FILE=$(mktemp -u "${TMPDIR:-/tmp}/corvex-unfinished.XXXXXX") && export TEST_PREMATURE_EXIT_FILE
    status=0
    "$wine" "$@" || status=$?
    if [ -e "$TEST_PREMATURE_EXIT_FILE" ]; then
        rm -f "$TEST_PREMATURE_EXIT_FILE"
        echo "$1 ended before its tests did, with $status" >&2
        [ "$status" -ne 0 ] || status=1
    fi
    exit "$status" ;;
esac
exec "$wine" "$@"
