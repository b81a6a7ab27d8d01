#!/usr/bin/env bash
# Installs what is missing, builds everything and runs all tests: the release build with its windows, then the core and
# the batch command under sanitizers. The last line is the sum. --schnell leaves the sanitizers out.
set -euo pipefail
exec </dev/null

wurzel="$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)"
cd "$wurzel"
source skripte/pakete.sh

builds=(pruefung asan)
case "${1:-}" in
    "") ;;
    --schnell) builds=(pruefung) ;;
    *)
        echo "Aufruf: ./test.sh [--schnell]" >&2
        exit 2
        ;;
esac
kerne="$(nproc)"
bestanden=0
gescheitert=0
uebersprungen=0

# Prints one count (tests, failures, disabled or skipped) of a JUnit file written by ctest.
Anzahl() {
    awk -v name="$2" '
        match($0, "[ \t<]" name "=\"[0-9]+\"") {
            wert = substr($0, RSTART, RLENGTH); gsub(/[^0-9]/, "", wert); print wert; gefunden = 1; exit
        }
        END { if (!gefunden) exit 1 }' "$1"
}

# Builds one preset, runs its tests and adds them to the sum.
Pruefen() {
    local preset="$1" ergebnis="$wurzel/build/$1/ergebnis.xml" ausgang=0 alle schlecht ohne
    echo "== $preset: bauen"
    cmake --preset "$preset" >/dev/null
    cmake --build --preset "$preset" --parallel "$kerne"
    echo "== $preset: testen"
    rm -f "$ergebnis"
    ctest --preset "$preset" --no-tests=error --parallel "$kerne" --timeout 300 --output-junit "$ergebnis" || ausgang=$?
    alle="$(Anzahl "$ergebnis" tests)"
    schlecht="$(Anzahl "$ergebnis" failures)"
    ohne=$(($(Anzahl "$ergebnis" skipped) + $(Anzahl "$ergebnis" disabled)))
    if [ "$ausgang" -ne 0 ] && [ "$schlecht" -eq 0 ]; then
        echo "ctest endete mit Status $ausgang, ohne einen gescheiterten Test zu nennen" >&2
        exit 1
    fi
    bestanden=$((bestanden + alle - schlecht - ohne))
    gescheitert=$((gescheitert + schlecht))
    uebersprungen=$((uebersprungen + ohne))
}

PaketeInstallieren pakete.txt bauen testen
for build in "${builds[@]}"; do
    Pruefen "$build"
done

summe="$bestanden passed, $gescheitert failed"
[ "$uebersprungen" -eq 0 ] || summe+=", $uebersprungen skipped"
echo "$summe"
[ "$gescheitert" -eq 0 ]
