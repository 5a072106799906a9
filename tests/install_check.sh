#!/usr/bin/env bash
# Installs the built tree into a fresh prefix and builds the C example against it
# twice, as a user would: with CMake's find_package and with pkg-config.
#   install_check.sh <build dir> <source dir> <scratch dir>
set -euo pipefail
build=$1 src=$2 work=$3
rm -rf "$work" && mkdir -p "$work"
cmake --install "$build" --prefix "$work/prefix" >/dev/null
# Move the installed tree: the package files must not remember where they were put.
mv "$work/prefix" "$work/moved"
prefix=$work/moved
libdir=$(dirname "$(find "$prefix" -name 'libqelm.so' | head -1)")

echo "-- find_package"
cmake -S "$src/examples/c" -B "$work/cmake" -DCMAKE_PREFIX_PATH="$prefix" -DCMAKE_BUILD_TYPE=Release >/dev/null
cmake --build "$work/cmake" >/dev/null
LD_LIBRARY_PATH=$libdir "$work/cmake/solve"

echo "-- pkg-config"
flags=$(PKG_CONFIG_PATH=$libdir/pkgconfig pkg-config --cflags --libs qelm)
echo "pkg-config: $flags"
case "$flags" in *"$prefix"*) ;; *) echo "the flags do not name the installed prefix"; exit 1 ;; esac
cc -std=c99 -O2 -o "$work/solve_pc" "$src/examples/c/solve.c" $flags -lm
LD_LIBRARY_PATH=$libdir "$work/solve_pc"
