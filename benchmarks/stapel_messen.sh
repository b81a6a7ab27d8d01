#!/usr/bin/env bash
# Measures the whole program: start, one account of 30 000 postings, and many accounts of 50, on one core and on all.
# Each figure is the best of several runs, so that what else the machine does disturbs little.
#   benchmarks/stapel_messen.sh [PROGRAMM]     build/release/src/stapel/zinfolio-cli unless given
set -euo pipefail
shopt -s inherit_errexit

quellen="$(realpath "$(dirname "${BASH_SOURCE[0]}")/..")"
programm="$(realpath "${1:-$quellen/build/release/src/stapel/zinfolio-cli}")"
konten=20000
buchungen=30000
ordner="$(mktemp -d)"
trap 'rm -rf "$ordner"' EXIT

python3 "$quellen/benchmarks/auftraege_erzeugen.py" "$konten" 50 >"$ordner/konten.jsonl"
python3 "$quellen/benchmarks/auftraege_erzeugen.py" 1 "$buchungen" >"$ordner/lang.jsonl"

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

LC_ALL=C awk -v start="$start" -v lang="$lang" -v einer="$einer" -v alle="$alle" -v konten="$konten" \
    -v buchungen="$buchungen" 'BEGIN {
    printf "Start ohne Auftrag                 %8.1f ms\n", start / 1000
    printf "Ein Konto mit %d Buchungen      %8.3f us je Buchung\n", buchungen, lang / buchungen
    printf "Konten mit 50 Buchungen, 1 Kern    %8.0f je Sekunde\n", konten / einer * 1e6
    printf "Konten mit 50 Buchungen, alle      %8.0f je Sekunde\n", konten / alle * 1e6
}'
