#!/usr/bin/env bash
# GCC on loops over every function: the names that it calls, from the object file, and the results, linked to the shared
# library, to the archive, and preloaded.
#     check_gcc.sh SOURCES BUILD SCRATCH
set -Eeuo pipefail
sources=$1 build=$2 scratch=$3 here=$1/tests/vecabi
. "$here/check.sh"

# Functions for which GCC has an instruction, by form.
declare -A instructions=(
    [b]="sqrt:sqrtp copysign:andp fabs:andp"
    [c]="sqrt:vsqrtp copysign:vandp fabs:vandp rint:vroundp nearbyint:vroundp"
    [d]="sqrt:vsqrtp copysign:vandp fabs:vandp rint:vroundp nearbyint:vroundp fma:vfmadd"
    [e]="sqrt:vsqrtp copysign:vp fabs:vp rint:vrndscalep nearbyint:vrndscalep fma:vfmadd"
)
declare -A target=([b]=-msse2 [c]=-mavx [d]="-mavx2 -mfma" [e]="-mavx512f -mprefer-vector-width=512")
# Without AVX2 GCC has no vector of eight pointers for the c form and takes the b form of sincosf.
declare -A letters=([b]=b [c]="[bc]" [d]=d [e]=e)

cc -O1 -c -Wall -Wextra -Werror "$here/run_loops.c" -o "$scratch/run.o"
for form in b c d e; do
    object=$scratch/gcc_$form.o
    # The two lines of docs/compilers.md, with what has sincos and the declarations of this test's own vectorized.
    cc -O3 ${target[$form]} -I"$sources/include" -fopenmp-simd -fno-builtin-sincos -fno-builtin-sincosf \
        -ffunction-sections -fPIC -c "$here/loops.c" -o "$object"
    names_are "$object" "${letters[$form]}" "${instructions[$form]}"
    cc "$scratch/run.o" "$object" -L"$build" -lorvane_vecabi -lm -o "$scratch/gcc_$form"
    [ $form != e ] || grep -qw avx512f /proc/cpuinfo || continue
    LD_LIBRARY_PATH=$build "$scratch/gcc_$form" "$build/liborvane_l9.so"
done

# The very line of docs/compilers.md; and sine and cosine of one argument, kept apart by the flags that it names.
cc -O3 -mavx2 -mfma -I"$sources/include" -DWITHOUT_POINTERS -ffunction-sections -c "$here/loops.c" -o "$scratch/plain.o"
names_are "$scratch/plain.o" d "${instructions[d]}" -DWITHOUT_POINTERS
cc -O3 -mavx2 -mfma -I"$sources/include" -fno-builtin-sin -fno-builtin-cos -fno-builtin-sinf -fno-builtin-cosf \
    -include orvane/math.h -ffunction-sections -c "$here/joined.c" -o "$scratch/both.o"
[ "$(calls_of "$scratch/both.o" | tr ' ' '\n' | grep _ZGV | sort | xargs)" = \
    "_ZGVdN4v_cos _ZGVdN4v_sin _ZGVdN8v_cosf _ZGVdN8v_sinf" ]

cc "$scratch/run.o" "$scratch/gcc_d.o" "$build/liborvane_vecabi.a" -lm -o "$scratch/gcc_static"
"$scratch/gcc_static" "$build/liborvane_l9.so"
cc -shared "$scratch/gcc_d.o" -lm -o "$scratch/libloops.so"
cc -Wl,--unresolved-symbols=ignore-in-shared-libs "$scratch/run.o" "$scratch/libloops.so" -lm -o "$scratch/gcc_preloaded"
LD_PRELOAD=$build/liborvane_vecabi.so LD_LIBRARY_PATH=$scratch "$scratch/gcc_preloaded" "$build/liborvane_l9.so"

# A program that was built for the C library's vector functions and knows of no other, preloaded: all functions that
# this library has in vector form.
known=$(nm -D "$(cc -print-file-name=libmvec.so.1)" | sed -En 's/.* _ZGVdN[0-9]+v+_(\w+)@.*/\1/p')
cc -O1 -c -DC_LIBRARY_ALONE "$here/run_loops.c" -o "$scratch/run_c_library.o"
cc -Ofast -mavx2 -mfma -fopenmp-simd -fno-builtin-sincos -fno-builtin-sincosf -DC_LIBRARY_ALONE -c "$here/loops.c" \
    -o "$scratch/c_library.o"
cc "$scratch/run_c_library.o" "$scratch/c_library.o" -lmvec -lm -o "$scratch/c_library"
objdump -p "$scratch/c_library" | grep -q 'NEEDED *libmvec'
if "$scratch/c_library" "$build/liborvane_l9.so" $known >/dev/null; then
    echo "the C library's own vector functions give the same bits: nothing is shown" >&2
    exit 1
fi
LD_PRELOAD=$build/liborvane_vecabi.so "$scratch/c_library" "$build/liborvane_l9.so" $known
