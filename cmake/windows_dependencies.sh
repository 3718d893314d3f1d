#!/bin/sh
# windows_dependencies.sh PREFIX
# windows_dependencies.sh --qt
#
# Builds what the Windows cross build links from the source packages of this machine's own distribution. The first
# way installs the libraries below PREFIX; a PREFIX that an older state of this script has filled is filled anew. The
# second way builds Qt, which takes long, so it is kept for all checkouts: in ~/.cache/quillmark (XDG_CACHE_HOME),
# under a key made of its version, the compiler's and the flags below. It prints that folder as its last line, and
# does only that when the folder is there already. Changes nothing else; package lists and sources are kept beside
# what is built, and root is not needed. Needs the packages named in `needed`.
set -eu

usage="usage: windows_dependencies.sh PREFIX | --qt"
prefix=${1:?"$usage"}
toolchain=$(cd "$(dirname "$0")" && pwd)/windows.cmake
jobs=${CMAKE_BUILD_PARALLEL_LEVEL:-$(nproc)}
needed="cmake dpkg-dev g++-mingw-w64-x86-64-posix libz-mingw-w64-dev"

# Libraries of their own, so that the licence's right to replace them is kept; no feature that the desktop lacks. The
# distribution's source has no tablet header; without direct2d PrintSupport does not link, with direct2d1_1 there
# would be a second platform plugin.
multiarch=$(dpkg-architecture -qDEB_HOST_MULTIARCH 2>/dev/null || gcc -print-multiarch)
qt_flags="-DCMAKE_BUILD_TYPE=Release -DBUILD_SHARED_LIBS=ON -DQUILLMARK_WINDOWS_SHARED=ON
    -DQT_HOST_PATH=/usr -DQT_HOST_PATH_CMAKE_DIR=/usr/lib/$multiarch/cmake -DQT_QMAKE_TARGET_MKSPEC=win32-g++
    -DQT_BUILD_EXAMPLES=OFF -DQT_BUILD_TESTS=OFF -DINPUT_opengl=no -DINPUT_openssl=no -DFEATURE_schannel=ON
    -DFEATURE_system_zlib=OFF -DFEATURE_pkg_config=OFF -DFEATURE_vulkan=OFF -DFEATURE_dbus=OFF -DFEATURE_sql=OFF
    -DFEATURE_xml=OFF -DFEATURE_concurrent=OFF -DFEATURE_tabletevent=OFF -DFEATURE_tuiotouch=OFF
    -DFEATURE_direct2d1_1=OFF -DFEATURE_icu=OFF -DFEATURE_glib=OFF -DFEATURE_zstd=OFF"

if [ "$prefix" = --qt ]; then
    needed="$needed ninja-build qt6-base-dev qt6-base-dev-tools"
    # The tools of this machine's Qt build the other one: both must be of one version.
    qt_version=$(dpkg-query -W -f '${source:Version}' qt6-base-dev)
    key=$(echo "$qt_flags $qt_version $(dpkg-query -W -f '${Version}' g++-mingw-w64-x86-64-posix)" | sha256sum | cut -c1-12)
    prefix=${XDG_CACHE_HOME:-$HOME/.cache}/quillmark/windows-qt-$key
    if [ -e "$prefix/complete" ]; then
        echo "$prefix"
        exit
    fi
    work=$prefix.work
    mkdir -p "$prefix"
else
    needed="$needed make pkg-config libcli11-dev nlohmann-json3-dev"
    work=$prefix/work
    mkdir -p "$prefix/include" "$prefix/lib/pkgconfig" "$prefix/share/cmake"
fi
mkdir -p "$work/lists/partial" "$work/cache/archives/partial" "$prefix/share/licenses"
prefix=$(cd "$prefix" && pwd)
work=$(cd "$work" && pwd)

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

# unpack PACKAGE [VERSION]: its source, patched as the distribution does, in $work/PACKAGE.
unpack() {
    [ -d "$work/$1" ] && return
    rm -rf "$work/unpacking" && mkdir "$work/unpacking"
    (cd "$work/unpacking" && own_apt source "$1${2:+=$2}" && mv ./*/ "$work/$1")
    rm -rf "$work/unpacking"
    cp "$work/$1/debian/copyright" "$prefix/share/licenses/$1.txt"
}

# build_with_cmake PACKAGE TARGET OPTION...: in $work/PACKAGE-build, ready to be installed below $prefix.
build_with_cmake() {
    package=$1
    target=$2
    shift 2
    unpack "$package"
    cmake -S "$work/$package" -B "$work/$package-build" -DCMAKE_TOOLCHAIN_FILE="$toolchain" \
        -DQUILLMARK_WINDOWS_PREFIX="$prefix" -DCMAKE_INSTALL_PREFIX="$prefix" -DCMAKE_INSTALL_LIBDIR=lib \
        -DCMAKE_BUILD_TYPE=Release -DCMAKE_C_FLAGS=-w -DBUILD_SHARED_LIBS=OFF "$@"
    cmake --build "$work/$package-build" --parallel "$jobs" --target "$target"
}

# install_with_cmake PACKAGE OPTION...
install_with_cmake() {
    package=$1
    shift
    build_with_cmake "$package" all "$@"
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

if [ -n "${qt_version-}" ]; then
    unpack qt6-base "$qt_version"
    # shellcheck disable=SC2086 # the flags are words
    cmake -S "$work/qt6-base" -B "$work/build" -G Ninja -DCMAKE_TOOLCHAIN_FILE="$toolchain" \
        -DQUILLMARK_WINDOWS_PREFIX="$prefix" -DCMAKE_INSTALL_PREFIX="$prefix" $qt_flags
    cmake --build "$work/build" --parallel "$jobs"
    cmake --install "$work/build" --strip
    date >"$prefix/complete"
    rm -rf "$work"
    echo "$prefix"
    exit
fi

install_with_cmake fmtlib -DFMT_TEST=OFF -DFMT_DOC=OFF
install_with_cmake pugixml
install_with_cmake googletest

# Of the compression library only the archive, so that the programs need no file of it beside them.
cp /usr/x86_64-w64-mingw32/lib/libz.a "$prefix/lib/"
cp /usr/x86_64-w64-mingw32/include/zlib.h /usr/x86_64-w64-mingw32/include/zconf.h "$prefix/include/"

unpack libdeflate
make -C "$work/libdeflate" -j "$jobs" CC=x86_64-w64-mingw32-gcc-posix AR=x86_64-w64-mingw32-ar libdeflatestatic.lib
cp "$work/libdeflate/libdeflatestatic.lib" "$prefix/lib/libdeflate.a"
cp "$work/libdeflate/libdeflate.h" "$prefix/include/"
describe libdeflate -ldeflate

install_with_cmake libzip -DENABLE_COMMONCRYPTO=OFF -DENABLE_GNUTLS=OFF -DENABLE_MBEDTLS=OFF \
    -DENABLE_OPENSSL=OFF -DENABLE_WINDOWS_CRYPTO=OFF -DENABLE_BZIP2=OFF -DENABLE_LZMA=OFF \
    -DBUILD_TOOLS=OFF -DBUILD_REGRESS=OFF -DBUILD_EXAMPLES=OFF -DBUILD_DOC=OFF
describe libzip "-lzip -lz"

# Of these two the libraries alone: their programs and tests take longer than all the rest.
build_with_cmake libjpeg-turbo jpeg-static -DENABLE_SHARED=OFF -DWITH_TURBOJPEG=OFF -DWITH_SIMD=OFF
cp "$work/libjpeg-turbo-build/libjpeg.a" "$prefix/lib/"
cp "$work"/libjpeg-turbo/j*lib.h "$work/libjpeg-turbo/jmorecfg.h" "$work/libjpeg-turbo/jerror.h" \
    "$work/libjpeg-turbo-build/jconfig.h" "$prefix/include/"
unpack qpdf
# Here the names of the system's libraries are told apart by case.
find "$work/qpdf" -name CMakeLists.txt -exec sed -i 's/Advapi32/advapi32/; s/Shell32/shell32/' {} +
build_with_cmake qpdf libqpdf -DCMAKE_CXX_FLAGS=-w -DUSE_IMPLICIT_CRYPTO=OFF -DREQUIRE_CRYPTO_NATIVE=ON
cp "$work/qpdf-build/libqpdf/libqpdf.a" "$prefix/lib/"
cp -r "$work/qpdf/include/qpdf" "$prefix/include/"
describe libqpdf "-lqpdf -ljpeg -lz -ladvapi32"

cp -r /usr/include/CLI /usr/include/nlohmann "$prefix/include/"
cp -r /usr/share/cmake/CLI11 /usr/share/cmake/nlohmann_json "$prefix/share/cmake/"

# The toolchain file compares it with the script that it would run.
sha256sum <"$0" | cut -d' ' -f1 >"$prefix/complete"
