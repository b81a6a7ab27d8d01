#!/usr/bin/env bash
# Runs one case, a file of sections, each begun by a line "== NAME":
#
#   NUMBER and a sentence that says what holds
#   == aufruf    the command line, read by bash in an empty folder; $QUELLEN is the folder of the sources
#   == datei X   a file X in that folder (any number of them)
#   == eingabe   standard input; none without the section
#   == ausgabe   the whole standard output
#   == fehler    the whole standard error
#   == status    the exit status
#
# Sections that are left out are empty, the status is 0. $PDFMODUL is a module in the place of the one that writes PDF,
# $PDFMODUL_FREMD one that does not fit. Call: fall.sh CASE PROGRAM SOURCES MODULE STRANGER
set -euo pipefail

fall="$(realpath "$1")"
export PROGRAMM QUELLEN PDFMODUL="$4" PDFMODUL_FREMD="$5"
PROGRAMM="$(realpath "$2")"
QUELLEN="$(realpath "$3")"

ordner="$(mktemp -d)"
trap 'rm -rf "$ordner"' EXIT
mkdir "$ordner/konfiguration"

# One section of the case, its lines as they are.
Abschnitt() {
    awk -v gesucht="== $1" '/^== / { drin = ($0 == gesucht); next } drin' "$fall"
}

for teil in aufruf eingabe ausgabe fehler status; do
    Abschnitt "$teil" >"$ordner/$teil"
done
[ -s "$ordner/aufruf" ] || { echo "$fall: ohne Aufruf" >&2; exit 2; }
[ -s "$ordner/status" ] || echo 0 >"$ordner/status"

# The program under the name that the user types, with a configuration folder and a locale of its own.
mkdir "$ordner/bin"
cat >"$ordner/bin/zinfolio-cli" <<'ENDE'
#!/bin/sh
LC_ALL="$SPRACHE" XDG_CONFIG_HOME="$KONFIGURATION" exec "$PROGRAMM" "$@"
ENDE
chmod +x "$ordner/bin/zinfolio-cli"
export KONFIGURATION="$ordner/konfiguration" PATH="$ordner/bin:$PATH"

# A new working folder with the files of the case.
OrdnerAnlegen() {
    rm -rf "$ordner/lauf"
    mkdir "$ordner/lauf"
    local name
    while IFS= read -r name; do
        Abschnitt "datei $name" >"$ordner/lauf/$name"
    done < <(sed -n 's/^== datei //p' "$fall")
}

# Runs the case once, with the program under a locale, and compares everything.
Lauf() {
    local ausgang=0
    OrdnerAnlegen
    (cd "$ordner/lauf" &&
        SPRACHE="$1" bash "$ordner/aufruf" <"$ordner/eingabe" >"$ordner/ist_ausgabe" 2>"$ordner/ist_fehler") ||
        ausgang=$?
    echo "$ausgang" >"$ordner/ist_status"
    local gleich=0 teil
    for teil in ausgabe fehler status; do
        diff -u --label "erwartet: $teil" --label "erhalten: $teil" "$ordner/$teil" "$ordner/ist_$teil" || gleich=1
    done
    return "$gleich"
}

head -n 1 "$fall"
Lauf C
Lauf de_DE.UTF-8
[ -z "$(ls -A "$ordner/konfiguration")" ] || { echo "Im Konfigurationsordner wurde etwas angelegt" >&2; exit 1; }
