#!/usr/bin/env bash
# Installs what is missing, builds the program and opens it. Arguments are handed to the program.
# Without a display the batch command calculates the example account instead.
set -euo pipefail
exec </dev/null

wurzel="$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)"
cd "$wurzel"
source skripte/pakete.sh

PaketeInstallieren pakete.txt bauen

echo "== Das Programm wird gebaut (beim ersten Mal dauert das einige Minuten)"
cmake --preset release -DZINFOLIO_TESTS=OFF -DZINFOLIO_MESSEN=OFF >/dev/null
cmake --build --preset release --target zinfolio zinfolio-cli

if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    echo "== zinfolio wird geöffnet"
    exec build/release/bin/zinfolio "$@"
fi
echo "== Kein Bildschirm gefunden (weder DISPLAY noch WAYLAND_DISPLAY ist gesetzt)."
echo "   Statt des Fensters rechnet zinfolio-cli das Beispielkonto examples/konto.json:"
exec build/release/bin/zinfolio-cli rechne examples/konto.json
