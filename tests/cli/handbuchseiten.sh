#!/usr/bin/env bash
# Every option and command of the help stands in the manual page and is offered by the completion of the shell, and neither
# knows one that is gone. Call: handbuchseiten.sh PROGRAM SOURCES
set -euo pipefail

programm="$(realpath "$1")"
quellen="$(realpath "$2")"
seite="$quellen/man/zinfolio-cli.1"
source "$quellen/vervollstaendigung/zinfolio-cli"
fehler=0

Gleich() {
    diff -u --label "$1: Hilfe" --label "$1: $4" <(sort -u <<<"$2") <(sort -u <<<"$3") || fehler=1
}

# The options in a text of the help.
Optionen() { sed -n '/^Optionen:/,/^$/p' | grep -oE '^  (-h,)?--[a-z]+' | grep -oE -- '--[a-z]+'; }

# What the completion offers for the words of a line, the last one under the cursor.
Angebot() {
    COMP_WORDS=("$@") COMP_CWORD=$(($# - 1)) COMPREPLY=()
    _zinfolio_cli
    printf '%s\n' "${COMPREPLY[@]}"
}

befehle="$("$programm" --help | sed -n '/^Befehle:/,/^$/p' | grep -oE '^  [a-z]+' | tr -d ' ')"
[ -n "$befehle" ]
Gleich Befehle "$befehle" "$(sed -n 's/^\.SS //p' "$seite")" Handbuchseite
Gleich Befehle "$befehle" "$(Angebot zinfolio-cli '' | grep -v '^-')" Vervollständigung
for befehl in $befehle; do
    optionen="$("$programm" "$befehl" --help | Optionen)"
    [ -n "$optionen" ]
    abschnitt="$(awk -v kopf=".SS $befehl" '/^\.S[SH] / { drin = ($0 == kopf) } drin' "$seite" | sed 's/\\-/-/g')"
    Gleich "$befehl" "$optionen" "$(grep -E '^\.BI? ' <<<"$abschnitt" | grep -oE -- '--[a-z]+')" Handbuchseite
    Gleich "$befehl" "$optionen" "$(Angebot zinfolio-cli "$befehl" --)" Vervollständigung
    # The words that an option of the help lists are those that are offered behind it.
    while read -r option worte; do
        Gleich "$befehl $option" "$(tr ' ' '\n' <<<"$worte")" "$(Angebot zinfolio-cli "$befehl" "$option" '')" Vervollständigung
    done < <("$programm" "$befehl" --help | grep -oE -- '^  --(format|ansicht|termine|wert) .*; sonst' | grep -v nur |
        sed -E 's/^  (--[a-z]+) [A-Z]+ +(Zu[rm]? [A-Za-zä]+: )?/\1 /; s/; sonst//; s/, / /g; s/ oder / /')
done
exit "$fehler"
