#!/usr/bin/env bash
# Every option in the help of the window program stands in its manual page, and the page knows no other. The help needs no
# display. Call: fensterseite.sh PROGRAM SOURCES
set -euo pipefail

programm="$(realpath "$1")"
seite="$(realpath "$2")/man/zinfolio.1"
ohneFenster=(env -u DISPLAY -u WAYLAND_DISPLAY QT_QPA_PLATFORM=gibtesnicht)

hilfe="$("${ohneFenster[@]}" "$programm" --help)"
optionen="$(sed -n '/^Optionen:/,/^$/p' <<<"$hilfe" | grep -oE '^  (-h,)?--[a-z]+' | grep -oE -- '--[a-z]+')"
[ -n "$optionen" ]
beschrieben="$(sed -n '/^\.SH OPTIONEN/,/^\.SH DATEIEN/p' "$seite" | sed 's/\\-/-/g' | grep -E '^\.BR? ' | grep -oE -- '--[a-z]+')"
diff -u --label Hilfe --label Handbuchseite <(sort -u <<<"$optionen") <(sort -u <<<"$beschrieben")
[ "$("${ohneFenster[@]}" "$programm" -h)" = "$hilfe" ]
"${ohneFenster[@]}" "$programm" --version | grep -qE '^zinfolio [0-9]+\.[0-9]+'
