#!/usr/bin/env bash
# Prints through the print system itself: a CUPS of its own in a temporary folder, reached by a local socket, with one
# queue whose backend writes into a file. What arrives there is read by pdftotext. Call: drucken_cups.sh DRUCK_PROBE
# Ends with 77, not passed, where CUPS cannot be started here.
set -euo pipefail

probe="$1"
ordner="$(mktemp -d)"
dienst=""
Aufraeumen() {
    if [ -n "$dienst" ]; then
        kill "$dienst" 2>/dev/null || true
        # It writes into the folder until its end.
        wait "$dienst" 2>/dev/null || true
    fi
    rm -rf "$ordner"
}
trap Aufraeumen EXIT

Uebersprungen() {
    echo "uebersprungen: $1"
    [ ! -s "$ordner/log/error" ] || tail -n 5 "$ordner/log/error"
    exit 77
}
Gescheitert() {
    echo "gescheitert: $1" >&2
    tail -n 20 "$ordner/log/error" >&2
    exit 1
}

cupsd="$(PATH="$PATH:/usr/sbin:/sbin" command -v cupsd)" || Uebersprungen "es gibt hier kein cupsd"
command -v lpstat >/dev/null || Uebersprungen "es gibt hier kein lpstat"

mkdir -p "$ordner"/{root,cache,state,spool,tmp,log,bin/backend}
ln -s /usr/lib/cups/daemon "$ordner/bin/daemon"
# Called with job, user, title, copies, options and the document.
cat >"$ordner/bin/backend/datei" <<EOF
#!/bin/sh
[ \$# -ge 5 ] || exit 0
cat "\${6:--}" >"$ordner/tmp/ankunft"
echo "\$4" >"$ordner/exemplare"
mv "$ordner/tmp/ankunft" "$ordner/angekommen"
EOF
chmod 700 "$ordner/bin/backend/datei"
cat >"$ordner/cups-files.conf" <<EOF
Printcap
ServerBin $ordner/bin
ServerRoot $ordner/root
CacheDir $ordner/cache
StateDir $ordner/state
RequestRoot $ordner/spool
TempDir $ordner/tmp
AccessLog $ordner/log/access
ErrorLog $ordner/log/error
PageLog $ordner/log/page
EOF
cat >"$ordner/root/cupsd.conf" <<EOF
LogLevel info
Listen $ordner/socket
Browsing Off
WebInterface No
DefaultAuthType None
<Location />
  Order allow,deny
  Allow all
</Location>
<Policy default>
  JobPrivateAccess all
  JobPrivateValues none
  <Limit All>
    Order deny,allow
  </Limit>
</Policy>
EOF
cat >"$ordner/root/printers.conf" <<EOF
<Printer pruefdrucker>
Info Pruefdrucker
DeviceURI datei:/angekommen
State Idle
Accepting Yes
</Printer>
EOF

"$cupsd" -f -c "$ordner/root/cupsd.conf" -s "$ordner/cups-files.conf" &
dienst=$!
export CUPS_SERVER="$ordner/socket" QT_QPA_PLATFORM=offscreen
for _ in $(seq 50); do
    kill -0 "$dienst" 2>/dev/null || { dienst=""; Uebersprungen "cupsd endet sofort"; }
    lpstat -p pruefdrucker >/dev/null 2>&1 && bereit=ja && break
    sleep 0.1
done
[ "${bereit:-}" = ja ] || Uebersprungen "cupsd antwortet nicht"

# Prints so many copies and waits until the queue is empty.
Drucken() {
    rm -f "$ordner/angekommen"
    "$probe" pruefdrucker "$1" >/dev/null || Gescheitert "der Druck wurde nicht angenommen"
    for _ in $(seq 50); do
        [ -s "$ordner/angekommen" ] && [ -z "$(lpstat -o pruefdrucker)" ] && return
        sleep 0.1
    done
    Gescheitert "beim Drucker kam nichts an"
}

Drucken 1
[ "$(cat "$ordner/exemplare")" = 1 ] || Gescheitert "aus einem Exemplar wurden mehrere"
text="$(pdftotext -layout "$ordner/angekommen" - | tr '\f' '\n')"
[ "$(grep -cE '^ *Datum +Vorgang +Kontostand *$' <<<"$text")" -eq 3 ] || Gescheitert "der Kopf steht nicht auf drei Seiten"
[ "$(grep -cE 'Nr[0-9]{5} +1\.234,56' <<<"$text")" -eq 100 ] || Gescheitert "es fehlen Zeilen"
pdfinfo "$ordner/angekommen" | grep -qE '^Pages: +4$' || Gescheitert "es sind nicht vier Seiten"
pdfinfo "$ordner/angekommen" | grep -qE '^Page size: +842 x 595 pts' || Gescheitert "die Seiten liegen nicht quer"

# Two copies are the print system's own work: one document and the wish for two.
Drucken 2
pdfinfo "$ordner/angekommen" | grep -qE '^Pages: +4$' || Gescheitert "die Exemplare stehen im Dokument"
[ "$(cat "$ordner/exemplare")" = 2 ] || Gescheitert "der Drucker erfährt nichts vom zweiten Exemplar"
echo "gedruckt: 4 Seiten, 100 Zeilen; 2 Exemplare"
