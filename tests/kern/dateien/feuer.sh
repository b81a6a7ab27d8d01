# A save under fire, for the scripts that source this file: every system call that it makes on files is, one at a time,
# the moment of a kill, of an I/O error, of a full disk and, where a signal may interrupt it, of an interruption.
#
# The sourcing script tells what is saved:
#   $argumente       the arguments of the probe. It saves between accesses to /marke-anfang and /marke-ende, and ends with
#                    0 where it reports success, 1 where it reports a fault
#   Herrichten       puts the files in their state before the save
#   GanzOderGarNicht WAS  complains where the files are neither wholly old nor wholly new
#   AllesNeu         true where the whole save is there
#   $ziel            the folder in which no temporary file may be left

set -u
shopt -s nullglob dotglob
export LC_ALL=C
# The leak check of a sanitizer build does not work under strace.
export ASAN_OPTIONS="detect_leaks=0${ASAN_OPTIONS:+:$ASAN_OPTIONS}"

readonly probe=$1
ordner=$(mktemp -d) || exit 1
readonly ordner
trap 'rm -rf "$ordner"' EXIT

punkte=0
fehlschlaege=0

command -v strace >/dev/null || { echo "FAILED: strace is not installed" >&2; exit 1; }
[ -x "$probe" ] || { echo "FAILED: no program $probe" >&2; exit 1; }

Fehlschlag() {
    echo "FAILED: $*" >&2
    fehlschlaege=$((fehlschlaege + 1))
}

# The files that are saved have names without a point in front.
VorlaeufigeDa() { compgen -G "$ziel/.[!.]*" >/dev/null; }

# One line for each call of the save: its name, and how many of its kind the program had made by then. Mappings of memory
# are no business of the save, nor are the pipes by which a sanitizer tries out addresses.
Zaehlen() {
    strace -f -y -o "$ordner/spur" -e trace='%file,%desc' "$probe" "${argumente[@]}" || return 1
    sed -E 's/^[0-9]+ +//' "$ordner/spur" | awk '
        { name = $0; sub(/\(.*/, "", name) }
        name !~ /^[a-z0-9_]+$/ { next }
        { ++zahl[name] }
        /"\/marke-anfang"/ { innen = 1; next }
        /"\/marke-ende"/ { ++enden; innen = 0 }
        innen && name !~ /^(mmap|pipe2?)$/ && !/<pipe:/ { print name, zahl[name] }
        END { exit enden == 1 ? 0 : 1 }' >"$ordner/punkte"
}

# Runs the probe with one fault; sets $status, 137 after a kill.
Beschiessen() {
    # The inner shell lives on after a kill, so that the outer one does not report it.
    (
        strace -f -o "$ordner/spur" -e trace="${1%%:*}" -e inject="$1" "$probe" "${argumente[@]}" \
            >"$ordner/ausgabe" 2>&1
        exit $?
    ) 2>/dev/null
    status=$?
}

Pruefen() {
    local was=$1 name=$2 art=$3 spur
    spur=$(<"$ordner/spur")
    GanzOderGarNicht "$was"
    if [ "$art" = signal=KILL ]; then
        [[ $status = 137 && $spur == *'killed by SIGKILL'* ]] || Fehlschlag "$was: not killed"
        return
    fi
    [[ $spur == *'(INJECTED)'* ]] || Fehlschlag "$was: nothing injected"
    ! VorlaeufigeDa || Fehlschlag "$was: a temporary file is left"
    case $status in
        0)
            AllesNeu || Fehlschlag "$was: success, but not all is new"
            # Nothing hangs on closing a folder or what was read; all else is a fault that must be told.
            [ "$art" = error=EINTR ] || [ "$name" = close ] || Fehlschlag "$was: the fault was not reported"
            ;;
        1) [ "$art" = error=EINTR ] && Fehlschlag "$was: an interruption is no fault" ;;
        *) Fehlschlag "$was: exit status $status: $(head -n 3 "$ordner/ausgabe")" ;;
    esac
}

# Fall NAME CALL...: the save once without fault, in which the calls named must be seen, then with each fault.
Fall() {
    local fall=$1 name nummer art arten
    Herrichten
    Zaehlen && AllesNeu || { Fehlschlag "$fall: the run without faults"; return; }
    for name in "${@:2}"; do
        grep -q "^$name " "$ordner/punkte" || Fehlschlag "$fall: no $name among the calls"
    done
    while read -r name nummer; do
        arten=(signal=KILL error=EIO error=ENOSPC)
        case $name in openat | read | write | fsync | close) arten+=(error=EINTR) ;; esac
        for art in "${arten[@]}"; do
            Herrichten
            Beschiessen "$name:$art:when=$nummer"
            Pruefen "$fall, $name no. $nummer, $art" "$name" "$art"
            punkte=$((punkte + 1))
        done
    done <"$ordner/punkte"
}

# The last command of the script.
Abschluss() {
    echo "$punkte points tried, $fehlschlaege failed"
    [ "$punkte" -gt 0 ] && [ "$fehlschlaege" = 0 ]
}
