#!/usr/bin/env bash
# Runs what README.md, docs/compilers.md and docs/jit.md tell people to type, as it stands there, against an installed
# library.
#     snippets.sh SOURCES BUILD PREFIX SCRATCH
set -euo pipefail
sources=$1 build=$2 prefix=$3 scratch=$4
rm -rf "$scratch"
mkdir -p "$scratch/app"
cd "$scratch"

fail() {
    echo "snippets: $*" >&2
    exit 1
}
# The indented block of a page that has a certain text in it, without its indentation.
block() { # PAGE TEXT
    awk -v text="$2" '
        /^    / { block = block substr($0, 5) "\n"; next }
        /^$/ { if (block) block = block "\n"; next }
        { if (index(block, text)) { printf "%s", block; found = 1; exit } block = "" }
        END { if (!found && index(block, text)) printf "%s", block }' "$sources/$1" | grep . ||
        fail "$1 has no block with '$2' any more"
}
# The n-th piece of code in a row of the table of docs/compilers.md.
cell() { # WITH N
    grep -F "| $1 |" "$sources/docs/compilers.md" | grep -o '`[^`]*`' | sed -n "$2s/\`//gp" | grep . ||
        fail "docs/compilers.md has no row '$1' with $2 pieces of code any more"
}
prints() { # EXPECTED COMMAND...
    local expected=$1 said
    shift
    said=$("$@") || fail "'$*' fails"
    [ "$said" = "$expected" ] || fail "'$*' prints '$said', not '$expected'"
}

lib=$(dirname "$(find "$prefix" -name liborvane_l9.so)")
# README: from C with CMake, which gives the program an rpath.
{
    block README.md orvane/orvane.h | grep '#include'
    echo '#include <stdio.h>'
    echo 'int main(void) { orvane_float8 x = {1};'
    block README.md orvane/orvane.h | grep -v '#include'
    echo 'printf("%.5f %.5f %g\n", y[0], y[7], r[0]); }'
} >app/app.c
{
    echo 'cmake_minimum_required(VERSION 3.25)'
    echo 'project(app LANGUAGES C)'
    echo 'add_executable(app app.c)'
    block README.md find_package
} >app/CMakeLists.txt
cmake -S app -B app/build -DCMAKE_PREFIX_PATH="$prefix" >log 2>&1 && cmake --build app/build >>log 2>&1 ||
    { cat log >&2; fail "README.md's first call from C does not build"; }
prints "2.71828 1.00000 7" app/build/app
export PKG_CONFIG_PATH=$lib/pkgconfig LIBRARY_PATH=$lib LD_LIBRARY_PATH=$lib CPATH=$prefix/include

# README: from C++.
{
    block README.md orvane/call.hpp | grep '#include'
    echo '#include <orvane/orvane.h>'
    echo '#include <cstdio>'
    echo 'int main() { orvane::vec<float, 16> x = {}; x[0] = 1;'
    block README.md orvane/call.hpp | grep -v '#include'
    echo 'std::printf("%.5f %.5f\n", (float)y[0], (float)y[15]); }'
} >call.cpp
c++ -std=c++20 -mavx2 -Wno-psabi call.cpp -lorvane_l9 -o call
prints "2.71828 1.00000" ./call

# README: from a JIT, as a compiler of LLVM's IR takes it.
if command -v llc-16 >/dev/null; then
    {
        echo 'declare <8 x float> @__orvane_l9_expf8(<8 x float>)'
        echo 'define <8 x float> @f(<8 x float> %x) {'
        block README.md '%y = call'
        echo 'ret <8 x float> %y }'
    } >call.ll
    llc-16 -O2 -mattr=+avx2,+fma -relocation-model=pic -filetype=obj call.ll -o call.o
    cat >jit.c <<'END'
#include <stdio.h>
typedef float float8 __attribute__((vector_size(32)));
float8 f(float8);
int main(void) { printf("%.5f\n", f((float8){1})[0]); }
END
    cc -mavx2 -Wno-psabi jit.c call.o -lorvane_l9 -o jit
    prints 2.71828 ./jit
fi

# README: from a shell. The first line of the answer is printed there.
if [ -x "$build/orvane-call" ]; then
    asked=$(block README.md '$ build/orvane-call' | sed -n 's/^\$ build\///p')
    [ "$("$build"/$asked | sed -n 2p)" = "$(block README.md '$ build/orvane-call' | sed -n 2p)" ] ||
        fail "'$asked' prints '$("$build"/$asked | sed -n 2p)', README.md says otherwise"
fi

# docs/compilers.md: each row of its table.
loop='void f(float* y, const float* x) { for (int i = 0; i < 64; i++) y[i] = expf(x[i]); }'
main='#include <stdio.h>
int main(void) { float x[64] = {1}, y[64]; f(y, x); printf("%.5f %.5f\n", y[0], y[63]); }'
calls() { # OBJECT: that the loop calls Orvane
    nm -u "$1" | grep -E '_ZGV[bd]N[48]v_expf|__orvane_l9_expf' >/dev/null || fail "$1 has no vector call of expf"
}
with() { # ROW, PIECE of code that compiles, PIECE that links
    local compile link
    compile=$(cell "$1" "$2") link=$(cell "$1" "$3")
    rm -f loop.o a.out
    eval "${compile/PLUGIN/\$(pkg-config --variable=clang_plugin orvane-vecabi)} ${4-}" || fail "'$compile' fails"
    calls loop.o
    eval "$link" || fail "'$link' fails"
    prints "${5-2.71828 1.00000}" ./a.out
}
printf '%s\n%s\n%s\n' "$(cell 'GCC, C' 2)" "$loop" "$main" >loop.c
with 'GCC, C' 1 3
printf '%s\n%s\n%s\n' "$(cell 'GCC, C++' 2)" "$loop" "$main" >loop.cpp
with 'GCC, C++' 1 3
if command -v gfortran >/dev/null; then
    cat >loop.f90 <<END
program loop
  $(cell gfortran 2)
  real :: x(64), y(64)
  integer :: i
  x = 0
  x(1) = 1
  call f(y, x)
  print '(f7.5,1x,f7.5)', y(1), y(64)
contains
  subroutine f(y, x)
    real, intent(out) :: y(64)
    real, intent(in) :: x(64)
    do i = 1, 64
      y(i) = exp(x(i))
    end do
  end subroutine
end program
END
    with gfortran 1 3 "$(pkg-config --cflags orvane-vecabi)"
fi
if command -v clang-16 >/dev/null && [ -f "$(pkg-config --variable=clang_plugin orvane-vecabi)" ]; then
    printf '#include <math.h>\n%s\n%s\n' "$loop" "$main" >loop.c
    with clang 1 2
fi

# docs/jit.md: the remarks of the passes.
plugin=$(find "$prefix" -name orvane-llvm-16.so)
if command -v clang-16 >/dev/null && [ -n "$plugin" ]; then
    block docs/jit.md 'float once' >loop.c
    command=$(block docs/jit.md -Rpass=orvane | sed -n 's/^\$ //p')
    eval "${command/orvane-llvm-16.so/$plugin}" 2>remarks || { cat remarks >&2; fail "'$command' fails"; }
    block docs/jit.md -Rpass=orvane | grep remark: | while read -r remark; do
        grep -qF "$remark" remarks || fail "clang does not say '$remark', which docs/jit.md shows"
    done
fi
echo "what README.md, docs/compilers.md and docs/jit.md tell people to type works"
