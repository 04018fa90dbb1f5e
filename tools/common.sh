# shellcheck shell=bash
# Sourced by the scripts: where things are, and an environment that is the same everywhere.

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

export PATH=${PATH:-/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin}
export HOME=${HOME:-$root/build}
export LC_ALL=C.UTF-8

# The Wine prefix of this checkout: registering the library there touches nothing else. In the 32-bit root
# (tools/i386-root) there is another one.
if [ "${QUORVEL_ARCHITECTURE-}" = x86 ]; then
    export WINEPREFIX=${QUORVEL_WINEPREFIX:-$root/build/wine}-x86
    export WINEARCH=win32
else
    export WINEPREFIX=${QUORVEL_WINEPREFIX:-$root/build/wine}
    export WINEARCH=win64
fi
export WINEDEBUG=${WINEDEBUG:--all}
# No offer to download Mono or Gecko, no entries in the desktop's menus; and no debugger when a program
# crashes: its status is 0 after that at times.
export WINEDLLOVERRIDES='mscoree=;mshtml=;winemenubuilder.exe,winedbg.exe=d'

# build PRESET [OPTION...]: configures and builds a preset, with options for `cmake --build`; only what
# changed is compiled.
build() {
    local preset=$1
    shift
    (cd "$root" && cmake --preset "$preset" && cmake --build --preset "$preset" "$@")
}

# with_architecture x64|x86 COMMAND...: where programs of the architecture run: here, or in the 32-bit root.
with_architecture() {
    case $1 in
        x64) "${@:2}" ;;
        x86) "$root/tools/i386-root" run "${@:2}" ;;
    esac
}

# register_library x64|x86: registers the library in the Wine prefix of its architecture.
register_library() {
    local dll=$root/build/windows-$1/bin/QuorvelTemplate.dll
    with_architecture "$1" "$root/tools/in-wine" regsvr32 /s "Z:${dll//\//\\}"
}
