#!/usr/bin/env bash
# Fills build/windows-prefix with the libraries that the Windows build links: Xerces-C and Duktape
# from Debian's own source packages, GoogleTest from its Debian package, and headers that need no
# building. A stamp of all that goes in makes the next run instant.
set -euo pipefail
cd "$(dirname "$0")/.."
root=$PWD
prefix=$root/build/windows-prefix
work=$root/build/windows-prefix-work
toolchain=$root/cmake/windows-toolchain.cmake

# The same versions as the Linux build has.
xerces=$(dpkg-query -W -f='${source:Version}' libxerces-c-dev)
duktape=$(dpkg-query -W -f='${source:Version}' duktape-dev)

stamp() {
  printf '%s\n' "xerces-c $xerces" "duktape $duktape"
  dpkg-query -W googletest nlohmann-json3-dev libcli11-dev g++-mingw-w64-x86-64-posix
  sha256sum <"$toolchain"
  sha256sum <"$root/tools/build_windows_prefix.sh"
}

# Package lists with sources, in a folder of our own: the machine's lists stay as they are.
apt_with_sources() {
  local apt=$work/apt
  apt-get -qq -o Dir::Etc::sourcelist=/dev/null -o Dir::Etc::sourceparts="$apt/sources" \
    -o Dir::State::Lists="$apt/lists" -o Dir::Cache="$apt/cache" -o APT::Sandbox::User=root "$@"
}

list_sources() {
  mkdir -p "$work"/apt/{sources,lists/partial,cache/archives/partial}
  apt-get indextargets --format 'deb-src $(REPO_URI) $(RELEASE) $(COMPONENT)' \
    'Created-By: Packages' 'Origin: Debian' | sort -u >"$work/apt/sources/debian.list"
  apt_with_sources update
}

fetch() {
  local package=$1 version=$2
  apt_with_sources source --download-only "$package=$version"
  dpkg-source --no-copy -x "${package}_${version#*:}.dsc" "$work/$package" >/dev/null
}

cmake_install() {
  local source=$1
  shift
  cmake -G Ninja -S "$source" -B "$work/build-$(basename "$source")" \
    -DCMAKE_TOOLCHAIN_FILE="$toolchain" -DCMAKE_BUILD_TYPE=Release \
    -DCMAKE_CXX_FLAGS_RELEASE="-Os -DNDEBUG -ffunction-sections -fdata-sections" \
    -DCMAKE_INSTALL_PREFIX="$prefix" -DBUILD_SHARED_LIBS=OFF "$@"
  cmake --build "$work/build-$(basename "$source")" --target install
}

build_xerces() {
  fetch xerces-c "$xerces"
  # The library alone: its tests and samples take as long again.
  sed -i '/add_subdirectory(\(doc\|tests\|samples\))/d' "$work/xerces-c/CMakeLists.txt"
  cmake_install "$work/xerces-c" -Dnetwork=OFF -Dtranscoder=windows -Dmessage-loader=inmemory
}

build_duktape() {
  fetch duktape "$duktape"
  local source=$work/duktape/src
  x86_64-w64-mingw32-gcc-posix -std=c99 -O2 -c "$source/duktape.c" -o "$work/duktape.o"
  x86_64-w64-mingw32-ar rcs "$prefix/lib/libduktape.a" "$work/duktape.o"
  cp "$source/duktape.h" "$source/duk_config.h" "$prefix/include/"
}

copy_headers() {
  cp -r /usr/include/nlohmann /usr/include/CLI "$prefix/include/"
  cp -r /usr/share/cmake/nlohmann_json /usr/share/cmake/CLI11 "$prefix/share/cmake/"
}

# What the licences of what is linked in ask to be passed on.
copy_licences() {
  local package
  mkdir -p "$prefix/licences"
  for package in libxerces-c-dev:xerces-c duktape-dev:duktape nlohmann-json3-dev:nlohmann-json \
    libcli11-dev:cli11 gcc-mingw-w64-base:gcc-runtime mingw-w64-common:mingw-w64-runtime; do
    cp "/usr/share/doc/${package%%:*}/copyright" "$prefix/licences/${package##*:}.txt"
  done
}

wanted=$(stamp)
[ "$(cat "$prefix/stamp" 2>/dev/null)" != "$wanted" ] || exit 0
rm -rf "$prefix" "$work"
mkdir -p "$prefix"/{include,lib,share/cmake} "$work"
cd "$work"
list_sources
build_xerces
build_duktape
cmake_install /usr/src/googletest
copy_headers
copy_licences
cd "$root"
rm -rf "$work"
printf '%s\n' "$wanted" >"$prefix/stamp"
