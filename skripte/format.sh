#!/usr/bin/env bash
# Formats all sources by .clang-format; with --pruefen it changes nothing and fails on a file that would change.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source skripte/quelldateien.sh

case "${1:-}" in
    "") art=(-i) ;;
    --pruefen) art=(--dry-run --Werror) ;;
    *)
        echo "Aufruf: skripte/format.sh [--pruefen]" >&2
        exit 2
        ;;
esac
Quelldateien src tests benchmarks | xargs -0 -P "$(nproc)" -n 20 clang-format "${art[@]}"
