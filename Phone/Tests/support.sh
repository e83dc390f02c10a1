# What the phone tests share: folders, and assertions that name what they missed.
# shellcheck shell=bash disable=SC2034
set -Eeuo pipefail
trap 'echo "FAILED: line $LINENO: $BASH_COMMAND" >&2' ERR
export LC_ALL=C

library=$1
phone=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

fail() {
    echo "FAILED: $*" >&2
    exit 1
}

# Builds a library of its own from sources in Phone/Tests: buildFrom LIBRARY SOURCE...
buildFrom() {
    local output=$1 source
    shift
    for source in "$@"; do
        "$phone/compile" "$phone/Tests/$source" "$output.objects/$source.o"
    done
    "$phone/link" "$output" "$output".objects/*.o
}

# The command must fail and say the text: expectRefusal TEXT COMMAND...
expectRefusal() {
    local text=$1
    shift
    if "$@" >"$scratch/answer" 2>&1; then
        fail "$* should have failed with '$text'"
    fi
    if ! grep -qF -- "$text" "$scratch/answer"; then
        cat "$scratch/answer" >&2
        fail "$* failed without saying '$text'"
    fi
}
