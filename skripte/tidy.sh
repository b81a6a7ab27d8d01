#!/usr/bin/env bash
# Runs clang-tidy over the sources that a build folder compiles, by the list in .clang-tidy.
#   skripte/tidy.sh [--geaendert] [BUILD]     BUILD is build/dev unless given; it must have been configured and built
# --geaendert takes only the files that differ from the main branch or are not committed yet.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source skripte/quelldateien.sh

nur_geaendert=0
if [ "${1:-}" = --geaendert ]; then
    nur_geaendert=1
    shift
fi
build="${1:-build/dev}"
if [ ! -f "$build/compile_commands.json" ]; then
    echo "Es fehlt $build/compile_commands.json: erst cmake --preset dev && cmake --build --preset dev" >&2
    exit 2
fi

Kandidaten() {
    if [ "$nur_geaendert" -eq 1 ]; then
        { git diff --name-only --diff-filter=d -z main -- src; git ls-files --others --exclude-standard -z -- src; } |
            grep -z '\.cpp$' || true
    else
        Quelldateien src | grep -z '\.cpp$'
    fi
}

# A build without windows compiles no form: what it does not know is left out.
Kandidaten | while IFS= read -r -d '' datei; do
    ! grep -qF "\"$PWD/$datei\"" "$build/compile_commands.json" || printf '%s\0' "$datei"
done | xargs -0 -r -P "$(nproc)" -n 1 clang-tidy --quiet -p "$build"
