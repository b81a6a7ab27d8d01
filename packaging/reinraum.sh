#!/usr/bin/env bash
# Installs the package into a Debian that has nothing else, and starts its programs there as a user without privileges, by
# the command of the menu entry. Takes root, the network and some minutes, so that it is run by hand before a release.
# Call: reinraum.sh PACKAGE.deb [SUITE]; the mirror is taken from DEBIAN_SPIEGEL.
set -euo pipefail

paket="$(realpath "$1")"
ausgabe="${2:-bookworm}"
spiegel="${DEBIAN_SPIEGEL:-http://deb.debian.org/debian}"
wurzel="$(mktemp -d /var/tmp/zinfolio-reinraum.XXXXXX)"
protokoll="$wurzel.txt"
# It becomes the root folder of a user.
chmod 755 "$wurzel"

Aufraeumen() {
    umount "$wurzel/proc" 2>/dev/null || true
    # Never through a folder that is still mounted.
    rm -rf --one-file-system "$wurzel" "$protokoll"
}
trap Aufraeumen EXIT

Gescheitert() {
    echo "$*" >&2
    exit 1
}

# Runs a command whose chatter matters only where it fails.
Still() { "$@" >"$protokoll" 2>&1 || { tail -20 "$protokoll"; Gescheitert "$* ist gescheitert"; }; }

AlsRoot() {
    chroot "$wurzel" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin LC_ALL=C.UTF-8 DEBIAN_FRONTEND=noninteractive "$@"
}

# As the user, without a display.
AlsBenutzer() {
    chroot --userspec=pruefer:pruefer "$wurzel" env -i PATH=/usr/bin:/bin LC_ALL=C.UTF-8 HOME=/home/pruefer \
        XDG_RUNTIME_DIR=/run/pruefer QT_QPA_PLATFORM=offscreen "$@"
}

# Waits until a command succeeds, ten seconds at the most.
Warten() {
    local i
    for i in $(seq 100); do
        ! "$@" || return 0
        sleep 0.1
    done
    return 1
}

echo "== $ausgabe wird in $wurzel angelegt"
Still debootstrap --variant=minbase "$ausgabe" "$wurzel" "$spiegel"
mount -t proc proc "$wurzel/proc"

echo "== Das Paket wird installiert"
cp "$paket" "$wurzel/var/tmp/zinfolio.deb"
Still AlsRoot apt-get update
Still AlsRoot apt-get install -y /var/tmp/zinfolio.deb
AlsRoot useradd --create-home pruefer
AlsRoot install -d -m 700 -o pruefer /run/pruefer
[ -z "$(AlsRoot dpkg --audit)" ] || Gescheitert "Das Paket ist nicht ganz eingerichtet"

echo "== Die Programme werden gestartet"
beispiel=/usr/share/doc/zinfolio/examples/konto.ZiS
AlsBenutzer zinfolio-cli --version
AlsBenutzer zinfolio --version
AlsBenutzer zinfolio-cli staffel "$beispiel" --pdf /home/pruefer/konto.pdf
[ "$(head -c 5 "$wurzel/home/pruefer/konto.pdf")" = %PDF- ] || Gescheitert "zinfolio-cli schreibt kein PDF"
grep -q /FontFile "$wurzel/home/pruefer/konto.pdf" || Gescheitert "Das PDF hat keine Schrift"

befehl="$(sed -n 's/^Exec=//p' "$wurzel/usr/share/applications/zinfolio.desktop")"
zahlungen="$wurzel/home/pruefer/.config/Fiskaris/Zinsstaffel1"
GleicheZahlungen() { cmp -s "$zahlungen" "$wurzel$(dirname "$beispiel")/Zinsstaffel1konto"; }
AlsBenutzer ${befehl/\%f/} &
fenster=$!
Warten test -e "$wurzel/home/pruefer/.config/Fiskaris/zinfolio.lock" || Gescheitert "Das Fenster ist nicht gestartet"
# A second start hands its project to the first.
AlsBenutzer ${befehl/\%f/$beispiel} || Gescheitert "Der zweite Start ist gescheitert"
Warten GleicheZahlungen || Gescheitert "Das Projekt wurde nicht geöffnet"
kill -0 "$fenster" || Gescheitert "Das Fenster hat sich beendet"
kill "$fenster"
wait "$fenster" || true

echo "== Das Paket wird entfernt"
Still AlsRoot apt-get purge -y zinfolio
uebrig="$(find "$wurzel/usr" "$wurzel/etc" -name '*zinfolio*')"
[ -z "$uebrig" ] || Gescheitert "Es bleibt übrig: $uebrig"
echo "== Das Paket läuft auf einem leeren $ausgabe"
