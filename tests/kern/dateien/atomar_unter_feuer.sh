#!/bin/bash
# The atomic save under fire: afterwards each file must be wholly old or wholly new; a save that reports success must have
# written; a save that reports a fault must have left no temporary file.
#   atomar_unter_feuer.sh PROBE

source "$(dirname "${BASH_SOURCE[0]}")/feuer.sh"

readonly ziel="$ordner/arbeit"
mkdir "$ziel"
# Old and new contents are longer than one page and share no beginning.
seq -f 'alt %05.0f' 1 2000 >"$ordner/alt"
seq -f 'neu %05.0f' 1 3000 >"$ordner/neu"

# The files of a case: $namen.
Herrichten() {
    local name
    rm -f "$ziel"/*
    [ "$altbestand" = leer ] && return
    for name in "${namen[@]}"; do cp "$ordner/alt" "$ziel/$name"; done
}

IstNeu() { cmp -s "$ziel/$1" "$ordner/neu"; }

IstAlt() {
    if [ "$altbestand" = leer ]; then [ ! -e "$ziel/$1" ]; else cmp -s "$ziel/$1" "$ordner/alt"; fi
}

AllesNeu() {
    local name
    for name in "${namen[@]}"; do IstNeu "$name" || return 1; done
}

GanzOderGarNicht() {
    local name
    for name in "${namen[@]}"; do
        IstNeu "$name" || IstAlt "$name" || Fehlschlag "$1: $name is neither old nor new"
    done
}

# SICHERUNG ALTBESTAND NAME...
Sicherungsfall() {
    local sicherung=$1 aufrufe=(openat write rename) name
    altbestand=$2
    namen=("${@:3}")
    argumente=("$sicherung")
    for name in "${namen[@]}"; do argumente+=("$ziel/$name" "$ordner/neu"); done
    [ "$sicherung" = fluechtig ] || aufrufe+=(fsync)
    Fall "$sicherung, $altbestand, ${#namen[@]} file(s)" "${aufrufe[@]}"
}

for sicherung in fluechtig dauerhaft; do
    Sicherungsfall "$sicherung" alt Plan
    Sicherungsfall "$sicherung" leer Plan
    Sicherungsfall "$sicherung" alt Plan Plan.1
done

Abschluss
