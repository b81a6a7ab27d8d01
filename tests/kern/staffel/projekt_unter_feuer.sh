#!/bin/bash
# The save of a project under fire: afterwards each of its four files must be wholly old or wholly new, the project file
# new only where the side files are, the working files as they were; a save that reports success must have written all, a
# save that reports a fault must have left no temporary file.
#   projekt_unter_feuer.sh PROBE

source "$(dirname "${BASH_SOURCE[0]}")/../dateien/feuer.sh"

readonly ziel="$ordner/Eigene Konten"
readonly beidateien=("Zinsstaffel1Übung v1.2" "ZinsstaffelzinsÜbung v1.2" "ZinsverrechnungÜbung v1.2")
readonly projekt="Übung v1.2.ZiS"
mkdir "$ziel" "$ordner/alt" "$ordner/neu" "$ordner/arbeit" "$ordner/vorlage"
readonly argumente=("$ordner/arbeit" "$ziel/$projekt" "$ordner/notizen")

# Contents of several pages that share no beginning, one for each file.
Inhalt() { seq -f "$1 $2 %05.0f" 1 "$3"; }
zeilen=1500
for name in "${beidateien[@]}" "$projekt"; do
    zeilen=$((zeilen + 500))
    Inhalt alt "$name" 1800 >"$ordner/alt/$name"
    Inhalt neu "$name" "$zeilen" >"$ordner/neu/$name"
done
cp "$ordner/neu/${beidateien[0]}" "$ordner/vorlage/Zinsstaffel1"
cp "$ordner/neu/${beidateien[1]}" "$ordner/vorlage/ZinsstaffelZins"
cp "$ordner/neu/${beidateien[2]}" "$ordner/vorlage/Zinsverrechnung"
cp "$ordner/neu/$projekt" "$ordner/notizen"

Herrichten() {
    rm -f "$ziel"/* "$ordner"/arbeit/*
    cp "$ordner"/vorlage/* "$ordner/arbeit"
    [ "$altbestand" = leer ] || cp "$ordner"/alt/* "$ziel"
}

IstNeu() { cmp -s "$ziel/$1" "$ordner/neu/$1"; }

IstAlt() {
    if [ "$altbestand" = leer ]; then [ ! -e "$ziel/$1" ]; else cmp -s "$ziel/$1" "$ordner/alt/$1"; fi
}

BeidateienNeu() {
    local name
    for name in "${beidateien[@]}"; do IstNeu "$name" || return 1; done
}

AllesNeu() { BeidateienNeu && IstNeu "$projekt"; }

GanzOderGarNicht() {
    local name
    for name in "${beidateien[@]}" "$projekt"; do
        IstNeu "$name" || IstAlt "$name" || Fehlschlag "$1: $name is neither old nor new"
    done
    ! IstNeu "$projekt" || BeidateienNeu || Fehlschlag "$1: the project file is new before its side files"
    diff -rq "$ordner/vorlage" "$ordner/arbeit" || Fehlschlag "$1: the working files have changed"
}

for altbestand in alt leer; do
    Fall "$altbestand" openat read write fsync rename
done

Abschluss
