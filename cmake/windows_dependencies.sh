#!/bin/sh
# windows_dependencies.sh PREFIX
#
# Builds the libraries that the Windows cross build links, from the source packages of this machine's own
# distribution, and installs them below PREFIX. Changes nothing else: package lists and sources are kept in
# PREFIX/work, and root is not needed. Needs the compilers and headers named in `needed`.
set -eu

prefix=${1:?"usage: windows_dependencies.sh PREFIX"}
toolchain=$(cd "$(dirname "$0")" && pwd)/windows.cmake
needed="cmake make pkg-config dpkg-dev g++-mingw-w64-x86-64-posix libz-mingw-w64-dev libcli11-dev nlohmann-json3-dev"
work=$prefix/work
mkdir -p "$work/lists/partial" "$work/cache/archives/partial" "$prefix/include" "$prefix/lib/pkgconfig" \
    "$prefix/share/cmake"
prefix=$(cd "$prefix" && pwd)
work=$prefix/work

missing=
for package in $needed; do
    dpkg-query -W -f '${Status}' "$package" 2>/dev/null | grep -q ' installed' || missing="$missing $package"
done
if [ -n "$missing" ]; then
    echo "The Windows build needs these packages:$missing" >&2
    exit 1
fi

# The toolchain file starts this script where it finds no libraries; not from within the script itself.
export QUILLMARK_WINDOWS_DEPENDENCIES_RUN=1

# apt with lists of its own: the source packages of every distribution archive that this machine uses.
# shellcheck disable=SC2016 # apt-get expands these names itself
apt-get indextargets 'Created-By: Packages' --format '$(ORIGIN)|deb-src $(REPO_URI) $(RELEASE) $(COMPONENT)' |
    sed -nE 's/^(Debian|Ubuntu)\|//p' | sort -u >"$work/sources.list"
own_apt() {
    apt-get -q -o Dir::Etc::SourceList="$work/sources.list" -o Dir::Etc::SourceParts=/dev/null \
        -o Dir::State::Lists="$work/lists" -o Dir::Cache="$work/cache" -o APT::Sandbox::User="$(id -un)" "$@"
}

# unpack PACKAGE: its source, patched as the distribution does, in $work/PACKAGE.
unpack() {
    [ -d "$work/$1" ] && return
    rm -rf "$work/unpacking" && mkdir "$work/unpacking"
    (cd "$work/unpacking" && own_apt source "$1" && mv ./*/ "$work/$1")
    rm -rf "$work/unpacking"
}

# install_with_cmake PACKAGE OPTION...
install_with_cmake() {
    package=$1
    shift
    unpack "$package"
    cmake -S "$work/$package" -B "$work/$package-build" -DCMAKE_TOOLCHAIN_FILE="$toolchain" \
        -DQUILLMARK_WINDOWS_PREFIX="$prefix" -DCMAKE_INSTALL_PREFIX="$prefix" -DCMAKE_INSTALL_LIBDIR=lib \
        -DCMAKE_BUILD_TYPE=Release -DCMAKE_C_FLAGS=-w -DBUILD_SHARED_LIBS=OFF "$@"
    cmake --build "$work/$package-build" --parallel
    cmake --install "$work/$package-build"
}

# describe NAME LIBRARIES: what pkg-config is asked for.
describe() {
    cat >"$prefix/lib/pkgconfig/$1.pc" <<END
Name: $1
Description: $1 for the Windows build
Version: 0
Libs: -L$prefix/lib $2
Cflags: -I$prefix/include
END
}

[ -s "$work/updated" ] || own_apt update
date >"$work/updated"

install_with_cmake fmtlib -DFMT_TEST=OFF -DFMT_DOC=OFF
install_with_cmake pugixml
install_with_cmake googletest

unpack libdeflate
make -C "$work/libdeflate" CC=x86_64-w64-mingw32-gcc-posix AR=x86_64-w64-mingw32-ar libdeflatestatic.lib
cp "$work/libdeflate/libdeflatestatic.lib" "$prefix/lib/libdeflate.a"
cp "$work/libdeflate/libdeflate.h" "$prefix/include/"
describe libdeflate -ldeflate

install_with_cmake libzip -DENABLE_COMMONCRYPTO=OFF -DENABLE_GNUTLS=OFF -DENABLE_MBEDTLS=OFF \
    -DENABLE_OPENSSL=OFF -DENABLE_WINDOWS_CRYPTO=OFF -DENABLE_BZIP2=OFF -DENABLE_LZMA=OFF \
    -DBUILD_TOOLS=OFF -DBUILD_REGRESS=OFF -DBUILD_EXAMPLES=OFF -DBUILD_DOC=OFF
describe libzip "-lzip -lz"

cp -r /usr/include/CLI /usr/include/nlohmann "$prefix/include/"
cp -r /usr/share/cmake/CLI11 /usr/share/cmake/nlohmann_json "$prefix/share/cmake/"

date >"$prefix/complete"
