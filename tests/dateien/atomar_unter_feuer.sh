#!/bin/bash
# The atomic save under fire: every system call that it makes on files is, one at a time, the moment of a kill, of an
# I/O error, of a full disk and, where a signal may interrupt it, of an interruption. Afterwards each file must be
# wholly old or wholly new; a save that reports success must have written; a save that reports a fault must have left
# no temporary file.
#   atomar_unter_feuer.sh PROBE

set -u
shopt -s nullglob dotglob
export LC_ALL=C
# The leak check of a sanitizer build does not work under strace.
export ASAN_OPTIONS="detect_leaks=0${ASAN_OPTIONS:+:$ASAN_OPTIONS}"

readonly probe=$1
ordner=$(mktemp -d) || exit 1
readonly ordner
trap 'rm -rf "$ordner"' EXIT

punkte=0
fehlschlaege=0

Fehlschlag() {
    echo "FAILED: $*" >&2
    fehlschlaege=$((fehlschlaege + 1))
}

# The targets of a case: $ziele. Old and new contents are longer than one page and share no beginning.
Herrichten() {
    local altbestand=$1 ziel
    rm -f "$ordner"/arbeit/*
    [ "$altbestand" = leer ] && return
    for ziel in "${ziele[@]}"; do cp "$ordner/alt" "$ordner/arbeit/$ziel"; done
}

Argumente() {
    local ziel
    argumente=("$1")
    for ziel in "${ziele[@]}"; do argumente+=("$ordner/arbeit/$ziel" "$ordner/neu"); done
}

IstNeu() { cmp -s "$ordner/arbeit/$1" "$ordner/neu"; }

IstAlt() {
    if [ "$1" = leer ]; then [ ! -e "$ordner/arbeit/$2" ]; else cmp -s "$ordner/arbeit/$2" "$ordner/alt"; fi
}

# The targets have names without a point in front.
VorlaeufigeDa() { compgen -G "$ordner/arbeit/.[!.]*" >/dev/null; }

# One line for each call of the save: its name, and how many of its kind the program had made by then. Mappings of memory
# are no business of the save, nor are the pipes by which a sanitizer tries out addresses.
Zaehlen() {
    strace -f -y -o "$ordner/spur" -e trace='%file,%desc' "$probe" "${argumente[@]}" || return 1
    sed -E 's/^[0-9]+ +//' "$ordner/spur" | awk '
        { name = $0; sub(/\(.*/, "", name) }
        name !~ /^[a-z0-9_]+$/ { next }
        { ++zahl[name] }
        /"\/marke-anfang"/ { innen = 1; next }
        /"\/marke-ende"/ { ++enden; innen = 0 }
        innen && name !~ /^(mmap|pipe2?)$/ && !/<pipe:/ { print name, zahl[name] }
        END { exit enden == 1 ? 0 : 1 }' >"$ordner/punkte"
}

# Runs the probe with one fault; sets $status, 137 after a kill.
Beschiessen() {
    # The inner shell lives on after a kill, so that the outer one does not report it.
    (
        strace -f -o "$ordner/spur" -e trace="${1%%:*}" -e inject="$1" "$probe" "${argumente[@]}" \
            >"$ordner/ausgabe" 2>&1
        exit $?
    ) 2>/dev/null
    status=$?
}

Pruefen() {
    local was=$1 altbestand=$2 name=$3 art=$4 ziel spur
    spur=$(<"$ordner/spur")
    for ziel in "${ziele[@]}"; do
        IstNeu "$ziel" || IstAlt "$altbestand" "$ziel" || Fehlschlag "$was: $ziel is neither old nor new"
    done
    if [ "$art" = signal=KILL ]; then
        [[ $status = 137 && $spur == *'killed by SIGKILL'* ]] || Fehlschlag "$was: not killed"
        return
    fi
    [[ $spur == *'(INJECTED)'* ]] || Fehlschlag "$was: nothing injected"
    ! VorlaeufigeDa || Fehlschlag "$was: a temporary file is left"
    case $status in
        0)
            for ziel in "${ziele[@]}"; do IstNeu "$ziel" || Fehlschlag "$was: success, but $ziel is not new"; done
            # Nothing hangs on closing a folder; all else is a fault that must be told.
            [ "$art" = error=EINTR ] || [ "$name" = close ] || Fehlschlag "$was: the fault was not reported"
            ;;
        1) [ "$art" = error=EINTR ] && Fehlschlag "$was: an interruption is no fault" ;;
        *) Fehlschlag "$was: exit status $status: $(head -n 3 "$ordner/ausgabe")" ;;
    esac
}

Fall() {
    local sicherung=$1 altbestand=$2 name nummer art arten
    ziele=("${@:3}")
    local fall="$sicherung, $altbestand, ${#ziele[@]} file(s)"
    Argumente "$sicherung"
    Herrichten "$altbestand"
    Zaehlen || { Fehlschlag "$fall: the run without faults"; return; }
    [ -s "$ordner/punkte" ] || Fehlschlag "$fall: no system call seen"
    for name in openat write rename; do
        grep -q "^$name" "$ordner/punkte" || Fehlschlag "$fall: no $name among the calls"
    done
    [ "$sicherung" = fluechtig ] || grep -q '^fsync' "$ordner/punkte" || Fehlschlag "$fall: no fsync"
    while read -r name nummer; do
        arten=(signal=KILL error=EIO error=ENOSPC)
        case $name in openat | write | fsync | close) arten+=(error=EINTR) ;; esac
        for art in "${arten[@]}"; do
            Herrichten "$altbestand"
            Beschiessen "$name:$art:when=$nummer"
            Pruefen "$fall, $name no. $nummer, $art" "$altbestand" "$name" "$art"
            punkte=$((punkte + 1))
        done
    done <"$ordner/punkte"
}

command -v strace >/dev/null || { echo "FAILED: strace is not installed" >&2; exit 1; }
[ -x "$probe" ] || { echo "FAILED: no program $probe" >&2; exit 1; }
mkdir "$ordner/arbeit"
seq -f 'alt %05.0f' 1 2000 >"$ordner/alt"
seq -f 'neu %05.0f' 1 3000 >"$ordner/neu"

for sicherung in fluechtig dauerhaft; do
    Fall "$sicherung" alt Plan
    Fall "$sicherung" leer Plan
    Fall "$sicherung" alt Plan Plan.1
done

echo "$punkte points tried, $fehlschlaege failed"
[ "$punkte" -gt 0 ] && [ "$fehlschlaege" = 0 ]
