# shellcheck shell=bash
# What the scripts share. To be sourced; leaves the caller in the project's root.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

say() { printf '== %s\n' "$*"; }
fail() { printf 'error: %s\n' "$*" >&2; exit 1; }

# build PRESET [CMAKE-OPTION...]: configures and builds in build/PRESET.
build() {
    local preset=$1
    shift
    say "Building build/$preset"
    cmake --preset "$preset" "$@" >/dev/null && cmake --build --preset "$preset" -j "$(nproc)"
}

# The files of ours that git tracks or would track, of the patterns given, one a line.
our_files() {
    git ls-files --cached --others --exclude-standard -- "$@" | while read -r file; do
        if [ -e "$file" ]; then printf '%s
' "$file"; fi
    done
}

# base_commit: what a change is measured against. The fork from origin/main when this branch has left it;
# otherwise (on main itself, or with no origin) twenty commits back, or the empty tree of a shorter history.
base_commit() {
    local fork
    if fork=$(git merge-base HEAD origin/main 2>/dev/null) && ! git diff --quiet "$fork"; then
        printf '%s\n' "$fork"
    else
        git rev-parse --verify --quiet HEAD~20 || git hash-object -t tree /dev/null
    fi
}
