#!/usr/bin/env bash
# Checks that each folder includes only what it may (the table of ARCHITECTURE.md): prints every
# include that it may not and fails. An argument names another tree to check.
set -euo pipefail
cd -- "${1:-$(dirname -- "${BASH_SOURCE[0]}")/../..}"

readonly qt='<Q[A-Z]|<Qt|"ui_'
readonly ports='platform/[^/"]+\.(h|inc)"'
broken=0

# includes_of PATH...: "file:line:#include ..." of the sources there, folders taken whole.
includes_of() {
    grep -rnE --include='*.h' --include='*.cpp' '^[[:space:]]*#[[:space:]]*include' "$@" /dev/null ||
        true
}

report() {
    local reason=$1 lines=$2
    if [[ -n $lines ]]; then
        printf '%s:\n%s\n' "$reason" "$lines"
        broken=1
    fi
}

# only PATH... -- REGEX: of this project's own headers, nothing but those that match.
only() {
    local paths=()
    while [[ $1 != -- ]]; do
        paths+=("$1")
        shift
    done
    report "${paths[0]%%/*}/ may include of this project only what matches \"($2)" \
        "$(includes_of "${paths[@]}" | grep '"' | grep -vE "\"($2)" || true)"
}

# never REASON REGEX PATH...
never() {
    local reason=$1 regex=$2
    shift 2
    report "$reason" "$(includes_of "$@" | grep -E "$regex" || true)"
}

only engine -- "engine/|$ports"
only platform/*.h platform/*.cpp platform/linux -- "$ports|platform/linux/"
only tools -- "engine/|platform/"
never "No Qt here" "$qt|platform/qt/" engine platform/*.h platform/*.cpp platform/linux tools

subjects=(generators dice editors explorer author)
for subject in "${subjects[@]}"; do
    others=$(printf '%s\n' "${subjects[@]}" | grep -vx "$subject" | paste -sd'|')
    never "$subject/ knows neither the other subjects nor the main window" \
        "\"($others)/|\"shell/main_window\.h\"" "$subject"
done

((broken == 0)) && echo "Every include is where it may be."
