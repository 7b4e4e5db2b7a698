# What the tests of the pages share. Their one argument is the folder with the program and its pages.
set -euo pipefail
export LC_ALL=C.UTF-8
program=$1/korvande-cli
pages=$1/pages
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

Fail() {
    printf 'FAILED: %s\n' "$*" >&2
    exit 1
}

# A folder with a drawing whose name has blanks and an accent, a control table and a folder.
MakeFiles() {
    cd "$scratch"
    touch 'blad één.idx' tabel.nst
    mkdir uitvoer
}

# What completes this, by the shell's own function Completed: each is one of the lines, and `not` is none.
Expect() {
    local line=$1 expected=$2 found
    found=$(Completed "$line")
    grep -qxF -- "$expected" <<<"$found" || Fail "'$line' is not completed with '$expected', but with: $found"
}
ExpectNot() {
    local line=$1 unexpected=$2 found
    found=$(Completed "$line")
    ! grep -qxF -- "$unexpected" <<<"$found" || Fail "'$line' is completed with '$unexpected'"
}

# The same in every shell.
ExpectAll() {
    local command
    for command in vertaal controleer vergelijk teken geopackage project; do Expect 'korvande-cli ' "$command"; done
    Expect 'korvande-cli project ' toon
    ExpectNot 'korvande-cli vertaal ' toon
    Expect 'korvande-cli vertaal --' --modus
    Expect 'korvande-cli vertaal --dr' --driepuntsbogen
    ExpectNot 'korvande-cli vertaal --' --rechte-lijnen
    Expect 'korvande-cli geopackage --' --rechte-lijnen
    Expect 'korvande-cli project toon --' --json
    Expect 'korvande-cli vertaal --antwoord ' annuleren
    Expect 'korvande-cli vertaal --modus ' suf2-idex
    Expect 'korvande-cli vertaal --modus suf2-idex --tekenset ' cp850
}
