# Runs steps one after the other and times them; the last line says passed, or what failed and how to run
# just that. Sourced by scripts/test and scripts/gate, in the root of the project.

declare -a all_steps=() default_steps=()
declare -A purpose_of command_of

# step NAME PURPOSE COMMAND… adds a step; optional_step one that runs only when it is named.
optional_step() {
    all_steps+=("$1")
    purpose_of[$1]=$2
    command_of[$1]="${*:3}"
}

step() {
    default_steps+=("$1")
    optional_step "$@"
}

list_steps() {
    local name
    for name in "$@"; do printf '  %-13s %s\n' "$name" "${purpose_of[$name]}"; done
}

# What a step may set for the summary: a line on its results, and a command that repeats only what failed.
result=
repeat=

# Configures and builds with the preset.
build() {
    cmake --preset "$1" && cmake --build --preset "$1"
}

# Runs the tests of the preset, which are in build/FOLDER (default: the preset's name).
run_tests() {
    local preset=$1 folder=build/${2:-$1} failed status=0
    rm -f "$folder/Testing/Temporary/LastTestsFailed.log"
    ctest --preset "$preset" --parallel "$(nproc)" 2>&1 | tee "$folder/ctest.log" || status=1
    result=$(grep -E '^[0-9]+% tests passed' "$folder/ctest.log" || true)
    if ((status)) && [[ -f $folder/Testing/Temporary/LastTestsFailed.log ]]; then
        failed=$(sed -e 's/^[0-9]*://' -e 's/[][().*+?^$|\\]/\\&/g' \
            "$folder/Testing/Temporary/LastTestsFailed.log" | paste -s -d '|')
        repeat="ctest --preset $preset -R '^($failed)\$'"
    fi
    return "$status"
}

# Runs the named steps, or all that are not optional. With stop_at_failure=yes, stops at the first that
# fails.
run_steps() {
    local script=$1 name begin failed=() lines=()
    shift
    if (($# == 0)); then set -- "${default_steps[@]}"; fi
    for name in "$@"; do
        if [[ -z $name || -z ${command_of[$name]+known} ]]; then
            usage >&2
            exit 2
        fi
    done
    exec </dev/null
    local start=$SECONDS
    for name in "$@"; do
        printf '\n== %s: %s: %s\n' "$script" "$name" "${purpose_of[$name]}"
        begin=$SECONDS
        result=
        repeat="./scripts/$script $name"
        local outcome=passed
        if ! eval "${command_of[$name]}"; then
            outcome=FAILED
            failed+=("$name (run it again with $repeat)")
        fi
        lines+=("$(printf '%-13s %s %4d s  %s' "$name" "$outcome" $((SECONDS - begin)) "$result")")
        printf '== %s: %s: %s, %d s\n' "$script" "$name" "$outcome" $((SECONDS - begin))
        if [[ $outcome == FAILED && ${stop_at_failure:-} == yes ]]; then break; fi
    done
    printf '\n== %s: summary\n' "$script"
    printf '%s\n' "${lines[@]}"
    if ((${#failed[@]} == 0)); then
        printf '%s: passed, %d s\n' "$script" $((SECONDS - start))
        return
    fi
    local last
    last=$(printf ', %s' "${failed[@]}")
    printf '%s: FAILED: %s\n' "$script" "${last#, }"
    return 1
}
