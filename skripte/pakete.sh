# Installs the Debian packages of pakete.txt; to be sourced, by scripts that run with `set -euo pipefail`.

# Prints the packages of the sections given, one a line.
PaketeDerAbschnitte() {
    local liste="$1"
    shift
    awk -v gewuenscht=" $* " '
        /^# \[/ { name = $2; gsub(/[][]/, "", name); drin = index(gewuenscht, " " name " ") > 0; next }
        /^#/ || NF == 0 { next }
        drin { print $1 }' "$liste"
}

# Prints those of the packages given that are not installed. Asks the local package database, no network.
FehlendePakete() {
    local paket
    for paket in "$@"; do
        [ "$(dpkg-query -W -f='${db:Status-Status}' "$paket" 2>/dev/null)" = installed ] || echo "$paket"
    done
}

# Runs apt-get as root, directly or by sudo.
Apt() {
    local als=()
    [ "$(id -u)" -eq 0 ] || als=(sudo)
    "${als[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -o DPkg::Lock::Timeout=120 "$@" </dev/null
}

# Gives up with the packages to be installed by hand.
InstallierenUnmoeglich() {
    echo "Diese Pakete fehlen und konnten nicht installiert werden ($1):" >&2
    echo "These packages are missing and could not be installed:" >&2
    shift
    echo "    apt-get install $*" >&2
    exit 1
}

# PaketeInstallieren LISTE ABSCHNITT...: installs what is missing of the sections given. A system without Debian's
# package database is told what is needed and left alone.
PaketeInstallieren() {
    local pakete fehlend
    mapfile -t pakete < <(PaketeDerAbschnitte "$@")
    if ! command -v dpkg-query >/dev/null; then
        echo "Kein Debian-System. Benötigt werden: ${pakete[*]}"
        return
    fi
    mapfile -t fehlend < <(FehlendePakete "${pakete[@]}")
    [ "${#fehlend[@]}" -gt 0 ] || return 0
    [ "$(id -u)" -eq 0 ] || command -v sudo >/dev/null || InstallierenUnmoeglich "weder root noch sudo" "${fehlend[@]}"
    echo "== Fehlende Pakete werden installiert: ${fehlend[*]}"
    Apt -qq update || InstallierenUnmoeglich "apt-get update" "${fehlend[@]}"
    Apt -qq install --yes --no-install-recommends "${fehlend[@]}" >/dev/null ||
        InstallierenUnmoeglich "apt-get install" "${fehlend[@]}"
}
