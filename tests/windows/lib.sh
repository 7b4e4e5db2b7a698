# shellcheck shell=bash
# What the end-to-end tests share; each sources it first. A test gets the folder of the built programs as its argument,
# runs on a display of its own and in the Windows that the test windows.Prefix has made, and begins with a clean slate:
# no LISCAD, no settings, an empty folder C:\proef. Everything is waited for, with a time limit; nothing that is missing
# is passed over.

here=$(dirname "$(realpath "${BASH_SOURCE[0]}")")
root=$(realpath "$here/../..")
build=$(realpath "$1")
program=$build/ui/korvande.exe
console=$build/cli/korvande-cli.exe
tool=$build/tests/windows/windowtool.exe
foreign=$build/tests/windows/foreign.exe
export KORVANDE_WINEPREFIX=$build/wine-endtoend
driveC=$KORVANDE_WINEPREFIX/drive_c
work=$driveC/proef
projects=$work/projecten
liscad='HKCU\SOFTWARE\LISTECH\LISCAD'
settings='HKCU\Software\TERAMUND\KORVANDE'
patience=30 # seconds
# So that a log book and the output of two runs can be compared.
export SOURCE_DATE_EPOCH=1700000000

Wine() {
    "$here/run-wine" "$@"
}

Tool() {
    Wine "$tool" "$@" | tr -d '\r'
}

# Ends the test, with what stood on the screen.
Fail() {
    printf 'FAILED: %s\n' "$*" >&2
    if [ -d "$driveC" ] && [ -f "$tool" ]; then
        printf 'The windows:\n' >&2
        Tool list >&2 || true
    fi
    exit 1
}

# Ends everything that runs in the tests' Windows, which is nobody else's.
StopWine() {
    WINEPREFIX=$KORVANDE_WINEPREFIX /usr/lib/wine/wineserver64 -k || true
    WINEPREFIX=$KORVANDE_WINEPREFIX /usr/lib/wine/wineserver64 -w
}

# Whether grep finds it in what it reads, to the end: a program that still writes when its reader has gone has failed.
Has() {
    [ -n "$(grep "$@")" ]
}

# Fails unless two texts are the same.
Equal() {
    local what=$1 expected=$2 actual=$3
    if [ "$expected" != "$actual" ]; then
        diff <(printf '%s\n' "$expected") <(printf '%s\n' "$actual") >&2 || true
        Fail "$what: not what was expected (<) but (>), see above"
    fi
}

EqualFiles() {
    cmp "$1" "$2" >&2 || Fail "$1 and $2 differ"
}

# Waits until a command succeeds.
WaitUntil() {
    local what=$1 end=$((SECONDS + patience))
    shift
    until "$@"; do
        if [ "$SECONDS" -ge "$end" ]; then Fail "$what: not within $patience seconds"; fi
        sleep 0.1
    done
}

WaitFor() {
    Tool wait "$1" "$patience" || Fail "no window \"$1\""
}

WaitGone() {
    Tool gone "$1" "$patience" || Fail "window \"$1\" stays"
}

Press() {
    Tool press "$1" "$2" || Fail "no button \"$2\" to press in window \"$1\""
}

# Starts a program in the background, with the tests' folder as its current one.
Start() {
    (cd "$work" && exec "$here/run-wine" "$@") &
    started=$!
}

HasEnded() {
    ! kill -0 "$started" 2>/dev/null
}

# Waits for the end of the program started last, which must be a good one.
WaitEnd() {
    WaitUntil "the end of the program" HasEnded
    wait "$started" || Fail "the program ended with status $?"
}

# The window of the program itself, not a box of its.
mainWindow="wxWindowNR/KORVANDE"

CloseWindow() {
    Tool close "$1" || Fail "no window \"$1\" to close"
    WaitGone "$1"
}

# Waits for Notepad with a file, tells its text, and closes it.
ReadNotepad() {
    local title="$1 - Notepad"
    WaitFor "$title"
    Tool text "$title" | sed -n 's/^Edit\t//p'
    CloseWindow "$title"
}

# Answers a message that must hold this text.
Finish() {
    WaitFor "#32770/KORVANDE"
    local text
    text=$(Tool text "#32770/KORVANDE")
    [[ $text == *"$1"* ]] || Fail "another message than: $1"$'\n'"$text"
    Press "#32770/KORVANDE" OK
    WaitGone "#32770/KORVANDE"
}

# Waits until a preview tells this of its drawing.
Tells() {
    Tool text "$1" | Has -F -- "$2"
}
WaitForPicture() {
    WaitFor "$1"
    WaitUntil "the drawing of $1" Tells "$1" "$2"
}

SetValue() {
    Wine reg add "$1" /v "$2" /d "$3" /f >/dev/null
}

# Puts a program that is not ours at a place, and sees that it was not started.
PutForeign() {
    cp "$foreign" "$1"
    # It does tell when it is.
    Wine "$1"
    [ -e "$1.gestart" ] || Fail "a program that is started does not tell"
    rm "$1.gestart"
}
ForeignWasLeftAlone() {
    [ ! -e "$1.gestart" ] || Fail "a program that is not ours was started: $1"
}

# All values below a key of the registry; nothing when there is no such key. A query that tells neither is asked again:
# now and then one ends without a word while another program of Wine is on its way out.
Values() {
    local values end=$((SECONDS + patience))
    # Messages go to standard output too, all in the code page of a console.
    until values=$(Wine reg query "$1" /s 2>/dev/null | iconv -f CP850 -t UTF-8 | tr -d '\r' | sed '/^$/d') &&
        [ -n "$values" ]; do
        case $values in
            *"Unable to find"*) return ;;
        esac
        if [ "$SECONDS" -ge "$end" ]; then Fail "the registry tells nothing of $1: $values"; fi
        sleep 0.1
    done
    printf '%s\n' "$values"
}

# A LISCAD of this version, with its projects in C:\proef\projecten.
InstallLiscad() {
    SetValue "$liscad\\$1\\SEE" UserPath 'C:\proef\projecten'
}

# The sample project, whose log book goes where the word says: Screen, File, None. Its table is the only one there.
MakeProject() {
    rm -rf "$projects"
    mkdir -p "$projects"
    sed "s/^Reporting = .*/Reporting = $1\r/" "$root/samples/voorbeeld.nst" >"$projects/voorbeeld.nst"
}

# What the console program makes of a file with the sample project. It may find errors in the drawing (status 1).
Reference() {
    local mode=$1 input=$2 output=$3 status=0
    Wine "$console" vertaal --modus "$mode" --project "$root/samples/voorbeeld.nst" --geen-logboek --stil \
        "$input" "$output" >/dev/null 2>&1 || status=$?
    [ "$status" -le 1 ] || Fail "the console program ended with status $status"
}

for file in "$program" "$console" "$tool" "$foreign"; do
    [ -f "$file" ] || Fail "$file was not built"
done
[ -d "$driveC" ] || Fail "no Windows in $KORVANDE_WINEPREFIX"
[ -n "${DISPLAY:-}" ] || Fail "no display"
StopWine
trap StopWine EXIT
for key in 'HKCU\SOFTWARE\LISTECH' 'HKCU\Software\TERAMUND'; do
    Wine reg delete "$key" /f >/dev/null 2>&1 || true
done
[ -z "$(Values "$liscad")$(Values "$settings")" ] || Fail "the registry could not be cleaned"
rm -rf "$work" "$KORVANDE_WINEPREFIX/dosdevices/d:"
mkdir -p "$projects"
# Looks on for as long as the test lasts: the desktop would go with its last program, and one that starts at that moment
# would find none.
Wine "$tool" wait "het einde van de proef" 3600 >/dev/null 2>&1 &
