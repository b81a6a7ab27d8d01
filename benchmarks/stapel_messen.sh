#!/usr/bin/env bash
# Measures the whole program: start, one account of 30 000 postings, many accounts of 50 on one core and on all, many
# payment series of 51 rows, and the PDF of an account's report.
# Each figure is the best of several runs, so that what else the machine does disturbs little.
#   benchmarks/stapel_messen.sh [PROGRAMM]     build/release/bin/zinfolio-cli unless given
set -euo pipefail
shopt -s inherit_errexit

quellen="$(realpath "$(dirname "${BASH_SOURCE[0]}")/..")"
programm="$(realpath "${1:-$quellen/build/release/bin/zinfolio-cli}")"
konten=20000
reihen=10000
buchungen=30000
ordner="$(mktemp -d)"
trap 'rm -rf "$ordner"' EXIT

Erzeugen() { python3 "$quellen/benchmarks/auftraege_erzeugen.py" "$@"; }

Erzeugen konten "$konten" 50 >"$ordner/konten.jsonl"
Erzeugen konten 1 "$buchungen" >"$ordner/lang.jsonl"
Erzeugen reihen "$reihen" 51 >"$ordner/reihen.jsonl"
Erzeugen tabelle 1000 >"$ordner/1000.csv"
Erzeugen tabelle "$buchungen" >"$ordner/$buchungen.csv"
printf '%s\n' 'Datum;Gutzins1;Gutzins2;Guthabenlinie;Kreditzins1;Kreditzins2;Kreditlinie;Zweitzinsart' \
    '01.01.2007;2;3;10000;9,5;12,75;2500;2' >"$ordner/zinssaetze.csv"

# The shortest time in microseconds of RUNS runs: Bestzeit RUNS INPUT COMMAND...
Bestzeit() {
    local laeufe="$1" eingabe="$2" beste= von bis i
    shift 2
    for ((i = 0; i < laeufe; ++i)); do
        von="${EPOCHREALTIME/[.,]/}"
        "$@" <"$eingabe" >/dev/null
        bis="${EPOCHREALTIME/[.,]/}"
        [ -n "$beste" ] && [ "$beste" -le $((bis - von)) ] || beste=$((bis - von))
    done
    echo "$beste"
}

start="$(Bestzeit 20 /dev/null "$programm" stapel --kerne 1)"
lang="$(Bestzeit 20 "$ordner/lang.jsonl" "$programm" stapel --kerne 1)"
einer="$(Bestzeit 5 "$ordner/konten.jsonl" "$programm" stapel --kerne 1)"
alle="$(Bestzeit 5 "$ordner/konten.jsonl" "$programm" stapel)"
reihe="$(Bestzeit 5 "$ordner/reihen.jsonl" "$programm" stapel --kerne 1)"

# The time of a report in Detailansicht 3 with so many payments: PdfZeit PAYMENTS
PdfZeit() {
    Bestzeit 5 /dev/null "$programm" staffel --zahlungen "$ordner/$1.csv" --zinssaetze "$ordner/zinssaetze.csv" \
        --abschluss 31.12.2099 --ansicht detail3 --pdf "$ordner/bericht.pdf"
}
pdf1000="$(PdfZeit 1000)"
pdflang="$(PdfZeit "$buchungen")"

LC_ALL=C awk -v start="$start" -v lang="$lang" -v einer="$einer" -v alle="$alle" -v konten="$konten" \
    -v reihe="$reihe" -v reihen="$reihen" -v pdf1000="$pdf1000" -v pdflang="$pdflang" -v buchungen="$buchungen" 'BEGIN {
    printf "Start ohne Auftrag                 %8.1f ms\n", start / 1000
    printf "Ein Konto mit %d Buchungen      %8.3f us je Buchung\n", buchungen, lang / buchungen
    printf "Konten mit 50 Buchungen, 1 Kern    %8.0f je Sekunde\n", konten / einer * 1e6
    printf "Konten mit 50 Buchungen, alle      %8.0f je Sekunde\n", konten / alle * 1e6
    printf "Reihen mit 51 Zeilen, 1 Kern       %8.0f je Sekunde\n", reihen / reihe * 1e6
    printf "PDF eines Kontos, 1000 Buchungen   %8.2f s\n", pdf1000 / 1e6
    printf "PDF eines Kontos, %d Buchungen  %8.2f s\n", buchungen, pdflang / 1e6
}'
