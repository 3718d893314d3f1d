# Sourced by ./run and ./test: installs the packages of scripts/packages.list that are missing.

install_packages() {
    local list missing=() package as_root=()
    list=$(sed -e 's/#.*//' -e 's/[[:space:]]//g' -e '/^$/d' "$1")
    if ! command -v dpkg-query >/dev/null 2>&1; then
        echo "This system has no apt. Quillmark needs these Debian packages or their equals:" $list >&2
        return 0
    fi
    for package in $list; do
        dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return 0

    echo "Installing: ${missing[*]}" >&2
    if [ "$(id -u)" -ne 0 ]; then
        if ! command -v sudo >/dev/null 2>&1; then
            echo "These packages are missing, and neither root nor sudo is at hand: ${missing[*]}" >&2
            return 1
        fi
        as_root=(sudo)
    fi
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get update -qq >&2 &&
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y -qq --no-install-recommends "${missing[@]}" >&2
}

# Configures and builds targets of a preset; quiet unless something fails.
build_targets() {
    local preset=$1 log
    shift
    mkdir -p build
    log=build/$preset.log
    if ! { [ -f "build/$preset/build.ninja" ] || cmake --preset "$preset"; } >"$log" 2>&1 ||
       ! cmake --build --preset "$preset" --target "$@" >>"$log" 2>&1; then
        cat "$log" >&2
        return 1
    fi
}
