#!/usr/bin/env bash
# The package as a user gets it. Call: paket.sh CHECK BUILD SOURCES; ends with 77 where a tool for it is missing.
#
#   inhalt    it holds what it should, its programs start from where it puts them, and its module is found
#   lintian   Debian's check of packages finds no error
#   menue     the desktop entry and the description for software centres are valid
#   dateityp  the file manager knows the files of our projects
set -euo pipefail

pruefung="$1"
build="$(realpath "$2")"
quellen="$(realpath "$3")"

ordner="$(mktemp -d)"
trap 'rm -rf "$ordner"' EXIT

Brauche() {
    local werkzeug
    for werkzeug in "$@"; do
        command -v "$werkzeug" >/dev/null || { echo "Es fehlt $werkzeug"; exit 77; }
    done
}

Gescheitert() {
    echo "$*" >&2
    exit 1
}

# Makes the package, and the variable `paket` its path.
Packen() {
    Brauche cpack dpkg-deb dpkg-shlibdeps
    (cd "$build" && cpack -G DEB -B "$ordner/paket" >"$ordner/cpack.txt" 2>&1) || { cat "$ordner/cpack.txt"; exit 1; }
    paket="$(echo "$ordner"/paket/*.deb)"
}

# What programs of the unpacked package run in: no display, and folders of their own.
umgebung=(env -u DISPLAY -u WAYLAND_DISPLAY HOME="$ordner" XDG_CONFIG_HOME="$ordner/konfiguration" XDG_RUNTIME_DIR="$ordner"
    QT_QPA_PLATFORM=offscreen)

InhaltPruefen() {
    local datei ausgang=0 programme="$ordner/wurzel/usr/bin"
    Packen
    dpkg-deb -x "$paket" "$ordner/wurzel"
    while IFS= read -r datei; do
        [ -s "$ordner/wurzel/usr/$datei" ] || Gescheitert "Im Paket fehlt $datei"
    done <<'ENDE'
bin/zinfolio
bin/zinfolio-cli
lib/zinfolio/zinfolio-pdf.so
share/applications/zinfolio.desktop
share/icons/hicolor/scalable/apps/zinfolio.svg
share/metainfo/example.zinfolio.zinfolio.metainfo.xml
share/mime/packages/zinfolio.xml
share/doc/zinfolio/copyright
share/doc/zinfolio/handbuch/inhalt.md
share/doc/zinfolio/examples/konto.ZiS
ENDE
    for datei in libc6 libqt6widgets6 libqt6printsupport6 libsimdjson; do
        dpkg-deb -f "$paket" Depends | grep -q "$datei" || Gescheitert "Das Paket verlangt $datei nicht"
    done
    [ -n "$("${umgebung[@]}" "$programme/zinfolio-cli" --version)" ] || Gescheitert "zinfolio-cli nennt keine Version"
    "${umgebung[@]}" "$programme/zinfolio-cli" staffel "$quellen/examples/konto.ZiS" --pdf "$ordner/konto.pdf" ||
        Gescheitert "zinfolio-cli schreibt kein PDF"
    [ "$(head -c 5 "$ordner/konto.pdf")" = %PDF- ] || Gescheitert "zinfolio-cli schreibt etwas anderes als PDF"
    # A program with windows runs until it is ended.
    "${umgebung[@]}" "$programme/zinfolio" &
    local programm=$!
    for _ in $(seq 100); do
        [ ! -d "$ordner/konfiguration" ] || [ -z "$(find "$ordner/konfiguration" -name zinfolio.lock)" ] || break
        sleep 0.1
    done
    kill "$programm" || Gescheitert "zinfolio hat sich beendet"
    wait "$programm" || ausgang=$?
    [ "$ausgang" -eq 143 ] || Gescheitert "zinfolio endete mit Status $ausgang"
    [ -n "$(find "$ordner/konfiguration" -name zinfolio.lock)" ] || Gescheitert "zinfolio hat seinen Ordner nicht angelegt"
}

LintianPruefen() {
    Brauche lintian
    Packen
    lintian --allow-root --fail-on error --tag-display-limit 0 "$paket"
}

MenuePruefen() {
    Brauche desktop-file-validate appstreamcli
    desktop-file-validate "$quellen/packaging/zinfolio.desktop"
    appstreamcli validate --no-net "$quellen/packaging/zinfolio.metainfo.xml"
}

DateitypPruefen() {
    Brauche update-mime-database
    mkdir -p "$ordner/mime/packages"
    cp "$quellen/packaging/zinfolio-mime.xml" "$ordner/mime/packages/"
    update-mime-database "$ordner/mime"
    local zeile
    for zeile in 'application/x-zinfolio-konto:*.zis' 'application/x-zinfolio-reihe:*.rrr'; do
        grep -qF "$zeile" "$ordner/mime/globs" || Gescheitert "Der Dateimanager kennt nicht $zeile"
        grep -q "^MimeType=.*${zeile%%:*};" "$quellen/packaging/zinfolio.desktop" || Gescheitert "Niemand öffnet $zeile"
    done
}

case "$pruefung" in
    inhalt) InhaltPruefen ;;
    lintian) LintianPruefen ;;
    menue) MenuePruefen ;;
    dateityp) DateitypPruefen ;;
    *) Gescheitert "Unbekannte Prüfung $pruefung" ;;
esac
