# Sourced by ./run, ./test and the scripts beside it: a piece of work in steps, of which each says in one line on
# standard error what it does and what is still to come. A step that finds everything done says nothing.

steps=()        # what is still to come, the step in hand first
steps_total=0
step_said=1

# plan WHAT...: the steps of this run, in order.
plan() {
    steps=("begin" "$@")
    steps_total=$#
}

# step: goes on to the next one of the plan.
step() {
    steps=("${steps[@]:1}")
    step_said=0
}

# say [DETAIL]: the line of the step in hand, once.
say() {
    [ "$step_said" -eq 0 ] || return 0
    step_said=1
    local line="[$((steps_total - ${#steps[@]} + 1))/$steps_total] ${steps[0]}${1:+: $1}" next separator="; then "
    for next in "${steps[@]:1}"; do
        line+=$separator$next
        separator=", "
    done
    echo "$line" >&2
}

# elapsed SECONDS: as 1:05.
elapsed() { printf '%d:%02d' $(($1 / 60)) $(($1 % 60)); }

# show_progress DONE TOTAL: on a terminal one line that counts, elsewhere a line at every quarter.
show_progress() {
    local part=$((100 * $1 / $2))
    if [ -t 2 ]; then
        printf '\r      %d of %d, %s ' "$1" "$2" "$(elapsed $((SECONDS - progress_began)))" >&2
        [ "$1" -lt "$2" ] || echo >&2
    elif [ $((part / 25)) -gt "$progress_quarter" ]; then
        progress_quarter=$((part / 25))
        echo "      $part %, $1 of $2 after $(elapsed $((SECONDS - progress_began)))" >&2
    fi
}

# begin_progress: before the first of a row of show_progress.
begin_progress() {
    progress_began=$SECONDS
    progress_quarter=0
}

# install_packages LIST...: what is missing of the packages named in scripts/packages/LIST.list.
install_packages() {
    local list missing=() package as_root=()
    list=$(for name in "$@"; do sed -e 's/#.*//' -e 's/[[:space:]]//g' -e '/^$/d' "scripts/packages/$name.list"; done)
    if ! command -v dpkg-query >/dev/null 2>&1; then
        echo "This system has no apt. Quillmark needs these Debian packages or their equals:" $list >&2
        return 0
    fi
    for package in $list; do
        dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return 0

    say "${missing[*]}"
    if [ "$(id -u)" -ne 0 ]; then
        if ! command -v sudo >/dev/null 2>&1; then
            echo "These packages are missing, and neither root nor sudo is at hand: ${missing[*]}" >&2
            return 1
        fi
        as_root=(sudo)
    fi
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get update -qq >&2 &&
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y -qq --no-install-recommends "${missing[@]}" >build/packages.log 2>&1 ||
        { cat build/packages.log >&2; return 1; }
}

# configure PRESET PART...: a build directory that holds these parts (TESTS, BENCHMARKS, DESKTOP, FUZZ) beside the command
# line. What it holds already it keeps.
configure() {
    local preset=$1 part cache=build/$1/CMakeCache.txt options=()
    shift
    if [ ! -f "build/$preset/build.ninja" ]; then
        for part in TESTS BENCHMARKS DESKTOP; do options+=("-DQUILLMARK_$part=OFF"); done
    fi
    for part in "$@"; do
        grep -q "^QUILLMARK_$part:[A-Z]*=ON" "$cache" 2>/dev/null || options+=("-DQUILLMARK_$part=ON")
    done
    [ ${#options[@]} -eq 0 ] || cmake --preset "$preset" "${options[@]}" >>"build/$preset.log" 2>&1
}

# The lines of ninja as progress; the rest goes to the log alone.
follow_build() {
    local line
    begin_progress
    while IFS= read -r line; do
        echo "$line"
        [[ $line =~ ^\[([0-9]+)/([0-9]+)\] ]] || continue
        say
        show_progress "${BASH_REMATCH[1]}" "${BASH_REMATCH[2]}"
    done
}

# build PRESET "PART..." TARGET...: configures and builds; quiet about all but the progress unless something fails.
build() {
    local preset=$1 parts=$2 log=build/$1.log
    shift 2
    mkdir -p build
    : >"$log"
    if ! configure "$preset" $parts ||
       ! cmake --build "build/$preset" --target "$@" 2>&1 | follow_build >>"$log"; then
        cat "$log" >&2
        return 1
    fi
}
