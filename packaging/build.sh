# shellcheck shell=bash
# Sourced by ./run, ./test and .ci/run from the repository's root.

# configure PRESET [CMAKE ARGUMENT...]: a build folder that came along from elsewhere (a clone that
# was moved or copied) is set up anew; what the user keeps beside the program stays.
configure() {
    local preset=$1 fresh=()
    shift
    if [[ -f build/$preset/CMakeCache.txt ]] && ! is_configured_here "$preset"; then
        fresh=(--fresh)
    fi
    cmake --preset "$preset" "${fresh[@]}" "$@"
}

is_configured_here() {
    [[ -f build/$1/build.ninja ]] &&
        grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$PWD" "build/$1/CMakeCache.txt"
}
