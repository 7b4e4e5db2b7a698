# shellcheck shell=bash
# What the scripts share; each sources it first. Puts them in the repository's root folder.

cd "$(dirname "${BASH_SOURCE[0]}")/.." || exit

jobs=$(nproc)

Heading() {
    printf '\n== %s\n' "$*"
}

Fail() {
    printf '%s: %s\n' "${0##*/}" "$*" >&2
    exit 1
}

WrongUsage() {
    Usage >&2
    exit 2
}

# Our own source files, one per line: the rooms that exist, the tests and the benchmarks.
Sources() {
    local folders=() folder
    for folder in core host project translation idex nensuf picture geopackage report run app ui cli library examples \
        tests bench; do
        if [ -d "$folder" ]; then folders+=("$folder"); fi
    done
    find "${folders[@]}" -type f \( -name '*.h' -o -name '*.cpp' \) | LC_ALL=C sort
}

# What was compiled before, in any checkout, is taken from the user's cache.
if command -v ccache >/dev/null; then
    export CMAKE_CXX_COMPILER_LAUNCHER=ccache CCACHE_BASEDIR=$PWD CCACHE_NOHASHDIR=1
fi

# Configures a preset and builds the targets named, or everything.
Build() {
    local preset=$1
    shift
    Heading "Building preset $preset"
    cmake --preset "$preset"
    cmake --build --preset "$preset" --parallel "$jobs" ${1:+--target "$@"}
}
