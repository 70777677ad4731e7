# Read by the scripts that start Corvex.exe on a display. Sets what they share: `root`, the folders of the native and the Windows
# programs ($CORVEX_NATIVE_BIN and $CORVEX_WIN_BIN, which have defaults), and the prefix that talks to X.
root=$(cd "$(dirname "$0")/.." && pwd)
native=${CORVEX_NATIVE_BIN:-$root/build/native/bin}
windows=${CORVEX_WIN_BIN:-$root/build/win64/bin}
export CORVEX_GFX=x11
export WINE_KEEPALIVE="$windows/keepalive.exe"

# take_program FOLDER: puts the program and an example into it, as a user would have unpacked them.
take_program() {
    mkdir -p "$1"
    cp -f "$windows/Corvex.exe" "$windows/ADXEditor.dll" "$root/examples/harrier-8192.adx" "$1/"
}

# windows_name FOLDER: the name that a Windows program knows it by.
windows_name() {
    printf 'Z:%s' "$1" | tr / '\\'
}

# end_prefix_at_exit: however the script ends, nothing is left running in the prefix of $WINEPREFIX.
end_prefix_at_exit() {
    trap 'wineserver -k 2>/dev/null || true; wineserver -w 2>/dev/null || true' EXIT
    trap 'exit 130' INT
    trap 'exit 143' TERM
}
