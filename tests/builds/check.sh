#!/usr/bin/env bash
# Hostile builds: whatever flags, compilers and copied trees come in, the library is made with its own flags or refused
# in one line, and a plain ./test recovers.
#     check.sh SOURCES BUILD SCRATCH
set -euo pipefail
sources=$1 build=$2 scratch=$3
unset CXX CC CXXFLAGS CFLAGS LDFLAGS CMAKE_TOOLCHAIN_FILE
export CMAKE_GENERATOR=Ninja
rm -rf "$scratch"
mkdir -p "$scratch"
fail() { echo "FAILED: $*" >&2; exit 1; }
real_cmake=$(command -v cmake)

# The tree without its builds.
tree=$scratch/tree
mkdir "$tree"
(cd "$sources" && tar cf - --exclude='./build*' --exclude=./.git .) | tar xf - -C "$tree"

# How the library is compiled and linked in a configured folder, without the folder's name.
commands() {
    ninja -C "$1" -t commands liborvane_l9.so liborvane_l9.a | grep -E '_l9_(kernels|rare)|liborvane' | sed "s|$1|BUILD|g"
}
configured() { # NAME [VARIABLE=VALUE...] [-D...]
    local folder=$scratch/$1 environment=()
    shift
    while (($#)) && [[ $1 != -* ]]; do environment+=("$1"); shift; done
    env "${environment[@]}" cmake -S "$tree" -B "$folder" -DORVANE_TESTS=OFF "$@" >"$folder.log" 2>&1
}

configured plain
commands "$scratch/plain" >"$scratch/plain.commands"
grep -q -- '-ffixed-xmm15' "$scratch/plain.commands" || fail "no commands of kernels"
cat >"$scratch/toolchain.cmake" <<'EOF'
set(CMAKE_CXX_FLAGS_INIT "-ffinite-math-only -march=x86-64-v4")
set(CMAKE_C_FLAGS_INIT "-flto")
set(CMAKE_SHARED_LINKER_FLAGS_INIT "-flto")
set(CMAKE_INTERPROCEDURAL_OPTIMIZATION ON)
set(CMAKE_UNITY_BUILD ON)
add_compile_options(-freciprocal-math)
add_compile_definitions(double=float)
add_link_options(-Wl,--wrap=memcpy)
EOF
bad="-flto -ffast-math -march=x86-64-v4 -fno-signed-zeros -O3 -DNDEBUG"
configured environment CXXFLAGS="$bad" CFLAGS="$bad" LDFLAGS="-flto -lm"
configured variables -DCMAKE_CXX_FLAGS="$bad" -DCMAKE_CXX_FLAGS_RELEASE="$bad" -DCMAKE_C_FLAGS_RELEASE="$bad" \
    -DCMAKE_SHARED_LINKER_FLAGS="-flto" -DCMAKE_INTERPROCEDURAL_OPTIMIZATION_RELEASE=ON -DCMAKE_CXX_STANDARD=23
configured toolchain -DCMAKE_TOOLCHAIN_FILE="$scratch/toolchain.cmake"
for name in environment variables toolchain; do
    commands "$scratch/$name" | diff "$scratch/plain.commands" - >"$scratch/$name.diff" ||
        fail "flags of the $name reach the library: $(head -c 2000 "$scratch/$name.diff")"
done
grep -q 'orvane_l9 is made without -flto -ffast-math' "$scratch/environment.log" || fail "dropped flags are not named"
# What changes neither bits nor registers is kept.
configured kept CXXFLAGS="-g -ffile-prefix-map=$tree=." LDFLAGS="-Wl,-z,relro,-z,now"
commands "$scratch/kept" | grep -- "-g -ffile-prefix-map" >/dev/null || fail "-g and prefix maps are lost"

# Compilers that cannot keep the library's promises are refused in one line that says what would be right.
mkdir "$scratch/bin"
printf '#!/bin/sh\nexec g++ "$@" -U__GNUC__ -D__GNUC__=11\n' >"$scratch/bin/old-g++"
printf '#!/bin/sh\nexec g++ "$@" -D__clang__ -D__clang_major__=19 -D__clang_minor__=1 -D__clang_patchlevel__=0\n' \
    >"$scratch/bin/other-g++"
chmod +x "$scratch"/bin/*
refused() { # NAME WHAT VARIABLE=VALUE...
    local name=$1 what=$2
    shift 2
    if configured "$name" "$@"; then fail "$name is accepted"; fi
    [[ $(grep -c "$what" "$scratch/$name.log") = 1 ]] || fail "$name: no line that says '$what': $(cat "$scratch/$name.log")"
}
refused old 'is GNU 11.*: set CXX to GCC 12 or newer' CXX="$scratch/bin/old-g++"
refused other 'is Clang 19.*: set CXX to GCC 12 or newer' CXX="$scratch/bin/other-g++"
refused flag 'CXX or CC holds the flag -flto' CXX="g++ -flto"

# ./test in a tree of its own, with building and testing left out: where did it configure, and for what?
cat >"$scratch/bin/cmake" <<EOF
#!/bin/sh
[ "\$1" = --build ] || exec "$real_cmake" "\$@"
grep -E '^CMAKE_(HOME_DIRECTORY|CXX_COMPILER):' build/CMakeCache.txt
test -e build/build.ninja
EOF
printf '#!/bin/sh\necho "  -R <regex>  --rerun-failed"\n' >"$scratch/bin/ctest"
chmod +x "$scratch"/bin/*
run_test() { (cd "$1" && shift && PATH="$scratch/bin:$PATH" ./test "$@"); }
if CXX=$scratch/bin/old-g++ run_test "$tree" >"$scratch/test.log" 2>&1; then fail "./test takes a refused compiler"; fi
run_test "$tree" >"$scratch/test.log" 2>&1 || fail "./test does not recover: $(tail -n 5 "$scratch/test.log")"
if cmake -S "$tree" -B "$tree/build" -DCMAKE_CXX_COMPILER="$scratch/bin/old-g++" >"$scratch/test.log" 2>&1; then
    fail "a finished build/ takes a refused compiler"
fi
run_test "$tree" >"$scratch/test.log" 2>&1 || fail "./test does not recover: $(tail -n 5 "$scratch/test.log")"
if grep -q old-g++ "$scratch/test.log"; then fail "./test keeps a refused compiler"; fi
cp -a "$tree" "$scratch/copy"
if cmake --build "$scratch/copy/build" --target check-library orvane_l9 >"$scratch/copy.log" 2>&1; then
    fail "cmake --build of a copied tree builds the old one"
fi
grep -q "copy/build was configured as" "$scratch/copy.log" || fail "a copied build/: $(tail -n 5 "$scratch/copy.log")"
run_test "$scratch/copy" >"$scratch/copy.log" 2>&1 || fail "./test in a copied tree: $(tail -n 5 "$scratch/copy.log")"
grep -qx "CMAKE_HOME_DIRECTORY:INTERNAL=$scratch/copy" "$scratch/copy.log" || fail "a copied tree builds the old one"
touch "$scratch/copy/build/kept"
run_test "$scratch/copy" >"$scratch/copy.log" 2>&1
if grep -q Configuring "$scratch/copy.log"; then fail "a second ./test configures again"; fi
for arguments in --bogus "-R expf --bogus" expf; do
    if run_test "$tree" $arguments >"$scratch/test.log" 2>&1; then fail "./test takes $arguments"; fi
    grep -q "takes CTest's arguments" "$scratch/test.log" || fail "./test $arguments: $(cat "$scratch/test.log")"
done
run_test "$tree" -R expf >"$scratch/test.log" 2>&1 || fail "./test -R expf"

# The check of a finished library names what is wrong with one.
cat >"$scratch/bad.c" <<'EOF'
#include <immintrin.h>
extern __m256 other(__m256);
int state = 1;
__m256 __orvane_l9_expf8(__m256 x) { asm volatile("" : : : "xmm9"); register __m256 y asm("ymm9") = x + x; asm volatile("vaddps %0, %0, %0" : "+x"(y)); return other(y); }
__m512 __orvane_l9_expf16(__m512 x) { return x + x; }
int __orvane_sexp_cout_rare(void) { _mm256_zeroupper(); return _mm_getcsr(); }
EOF
gcc -O2 -mavx512f -fPIC -shared -nostdlib "$scratch/bad.c" -o "$scratch/bad.so"
if "$build/check-library" "$scratch/bad.so" objdump 2>"$scratch/bad.log"; then fail "check-library accepts bad.so"; fi
for fault in 'expf8: uses vector registers 8 to 15' 'expf16: uses registers of 512-bit' 'other: is imported' \
    'is exported and not listed' 'is listed in' 'writable data' 'not baseline' 'MXCSR'; do
    grep -q "$fault" "$scratch/bad.log" || fail "check-library does not say '$fault': $(cat "$scratch/bad.log")"
done
echo "hostile builds give the same library or one line"
