# Finds the sources of the house; to be sourced, from the root folder.

# Prints the C++ files below the folders given that exist, each ended by a zero byte.
Quelldateien() {
    local ordner vorhandene=()
    for ordner in "$@"; do
        [ ! -d "$ordner" ] || vorhandene+=("$ordner")
    done
    find "${vorhandene[@]}" -type f \( -name '*.h' -o -name '*.cpp' \) -print0
}
