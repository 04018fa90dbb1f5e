# shellcheck shell=bash
# Sourced by the scripts: where things are, and an environment that is the same everywhere.

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

export PATH=${PATH:-/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin}
export HOME=${HOME:-$root/build}
export LC_ALL=C.UTF-8

# The Wine prefix of this checkout: registering the library there touches nothing else.
export WINEPREFIX=${QUORVEL_WINEPREFIX:-$root/build/wine}
export WINEARCH=win64
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

# register_library: registers the 64-bit library in the Wine prefix.
register_library() {
    local dll=$root/build/windows-x64/bin/QuorvelTemplate.dll
    "$root/tools/in-wine" regsvr32 /s "Z:${dll//\//\\}"
}
