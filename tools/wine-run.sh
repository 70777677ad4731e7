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
exec "$wine" "$@"
