#!/usr/bin/env bash
# Installs what is missing, builds everything and runs all tests: what the user runs with its windows, and core and batch
# command once more under sanitizers. The last line is the sum. --schnell leaves the sanitizers out.
set -euo pipefail
exec </dev/null

wurzel="$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)"
cd "$wurzel"
source skripte/pakete.sh

geprueft=ON
case "${1:-}" in
    "") ;;
    --schnell) geprueft=OFF ;;
    *)
        echo "Aufruf: ./test.sh [--schnell]" >&2
        exit 2
        ;;
esac
kerne="$(nproc)"
ergebnis="$wurzel/build/pruefung/ergebnis.xml"

# Prints one count (tests, failures, disabled or skipped) of a JUnit file written by ctest.
Anzahl() {
    awk -v name="$2" '
        match($0, "[ \t<]" name "=\"[0-9]+\"") {
            wert = substr($0, RSTART, RLENGTH); gsub(/[^0-9]/, "", wert); print wert; gefunden = 1; exit
        }
        END { if (!gefunden) exit 1 }' "$1"
}

PaketeInstallieren pakete.txt bauen testen
echo "== bauen"
cmake --preset pruefung -DZINFOLIO_GEPRUEFT="$geprueft" >/dev/null
cmake --build --preset pruefung --parallel "$kerne"

echo "== testen"
rm -f "$ergebnis"
ausgang=0
ctest --preset pruefung --no-tests=error --parallel "$kerne" --timeout 300 --output-junit "$ergebnis" || ausgang=$?
alle="$(Anzahl "$ergebnis" tests)"
gescheitert="$(Anzahl "$ergebnis" failures)"
uebersprungen=$(($(Anzahl "$ergebnis" skipped) + $(Anzahl "$ergebnis" disabled)))
bestanden=$((alle - gescheitert - uebersprungen))
if [ "$ausgang" -ne 0 ] && [ "$gescheitert" -eq 0 ]; then
    echo "ctest endete mit Status $ausgang, ohne einen gescheiterten Test zu nennen" >&2
    exit 1
fi

summe="$bestanden passed, $gescheitert failed"
[ "$uebersprungen" -eq 0 ] || summe+=", $uebersprungen skipped"
echo "$summe"
[ "$gescheitert" -eq 0 ]
