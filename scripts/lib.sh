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

# Our own source files, one per line: the rooms that exist, the tests and the benchmarks. The tests in the window are
# left out as long as the daily run does not build them.
Sources() {
    local folders=() folder
    for folder in core host project run idex nensuf app ui cli tests bench; do
        if [ -d "$folder" ]; then folders+=("$folder"); fi
    done
    find "${folders[@]}" -path tests/gui -prune -o -type f \( -name '*.h' -o -name '*.cpp' \) -print | LC_ALL=C sort
}

# Configures a preset and builds the targets named, or everything.
Build() {
    local preset=$1
    shift
    Heading "Building preset $preset"
    cmake --preset "$preset"
    cmake --build --preset "$preset" --parallel "$jobs" ${1:+--target "$@"}
}
