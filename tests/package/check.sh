#!/usr/bin/env bash
# Installs the library and uses it from outside.
#     check.sh SOURCES BUILD SCRATCH
set -euo pipefail
sources=$1 build=$2 scratch=$3
export CMAKE_GENERATOR=Ninja
rm -rf "$scratch"
mkdir -p "$scratch"
log=$scratch/log
trap 'tail -n 20 "$log" 2>/dev/null' ERR

# The library alone: nothing of what tests and tools need is looked for.
cmake -S "$sources" -B "$scratch/alone" -DORVANE_TESTS=OFF >"$log" 2>&1
if grep -iE '(mpfr|gtest|sleef|zydis|nlohmann|cli11|benchmark)[a-z0-9_]*:' "$scratch/alone/CMakeCache.txt"; then
    echo "the library alone looks for a library of the tests" >&2
    exit 1
fi

cmake --install "$build" --prefix "$scratch/prefix" >>"$log" 2>&1

cmake -S "$sources/tests/package" -B "$scratch/consumer" -DCMAKE_PREFIX_PATH="$scratch/prefix" >>"$log" 2>&1
cmake --build "$scratch/consumer" >>"$log" 2>&1
for program in use_orvane_l9 use_orvane_l9_static; do
    [ "$("$scratch/consumer/$program")" = "1 2.71828175" ]
done

[[ "$("$scratch/consumer/use_vecabi")" == "2.718 888613"* ]]

export PKG_CONFIG_PATH
PKG_CONFIG_PATH=$(dirname "$(find "$scratch/prefix" -name orvane.pc)")
(cd "$scratch" && cc -c -mavx2 -Wno-psabi $(pkg-config --cflags orvane) "$sources/tests/package/consumer.c")
c++ -std=c++20 -mavx2 -Wno-psabi $(pkg-config --cflags orvane) "$sources/tests/package/wide.cpp" "$scratch/consumer.o" \
    $(pkg-config --libs orvane) -o "$scratch/by_pkg_config"
[ "$(LD_LIBRARY_PATH=$(pkg-config --variable=libdir orvane) "$scratch/by_pkg_config")" = "1 2.71828175" ]
cc -O3 -mavx2 -mfma $(pkg-config --cflags orvane-vecabi) "$sources/tests/package/vecabi.c" $(pkg-config --libs orvane-vecabi) -lm \
    -o "$scratch/vecabi"
LD_LIBRARY_PATH=$(pkg-config --variable=libdir orvane-vecabi) "$scratch/vecabi" >/dev/null
[ -f "$scratch/prefix/include/orvane/exports.json" ]
[ -f "$scratch/prefix/share/doc/orvane/LICENSE" ]
unset PKG_CONFIG_PATH
"$sources/tests/package/snippets.sh" "$sources" "$build" "$scratch/prefix" "$scratch/snippets"
echo "the installed package works by find_package and by pkg-config"
