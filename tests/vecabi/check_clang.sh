#!/usr/bin/env bash
# Clang with the plugin on loops over every function: names, results, remarks; sine and cosine joined.
#     check_clang.sh SOURCES BUILD SCRATCH VERSION
set -Eeuo pipefail
sources=$1 build=$2 scratch=$3 version=$4 here=$1/tests/vecabi
. "$here/check.sh"
clang=clang-$version
plugin=$build/orvane-clang-$version.so

# Functions for which clang has instructions in vectors, by form.
declare -A instructions=(
    [b]="sqrt:sqrtp copysign:andp fabs:andp fmin:minp fmax:maxp"
    [d]="sqrt:vsqrtp copysign:vandp fabs:vandp ceil:vroundp floor:vroundp trunc:vroundp rint:vroundp
         nearbyint:vroundp round:vroundp fma:vfmadd fmin:vminp fmax:vmaxp"
    [e]="sqrt:vsqrtp copysign:vp fabs:vand ceil:vrndscalep floor:vrndscalep trunc:vrndscalep rint:vrndscalep
         nearbyint:vrndscalep round:vrndscalep fma:vfmadd fmin:vminp fmax:vmaxp"
)
declare -A target=([b]=-msse2 [d]="-mavx2 -mfma" [e]="-mavx512f -mavx512dq")

compile() { "$clang" -O2 -fno-math-errno -fpass-plugin="$plugin" -I"$sources/include" "$@"; }
cc -O1 -c -DWITHOUT_POINTERS "$here/run_loops.c" -o "$scratch/run.o"
for form in b d e; do
    object=$scratch/clang_$form.o
    compile ${target[$form]} -DWITHOUT_POINTERS -ffunction-sections -fPIC -Rpass=orvane -c "$here/loops.c" -o "$object" \
        2>"$scratch/remarks"
    names_are "$object" $form "${instructions[$form]}" -DWITHOUT_POINTERS
    [ $form != d ] || grep -q 'call of .*log.f64 has vector forms _ZGVbN2v_log, _ZGVdN4v_log \[-Rpass=orvane\]' "$scratch/remarks"
    cc "$scratch/run.o" "$object" -L"$build" -lorvane_vecabi -lm -o "$scratch/clang_$form"
    [ $form != e ] || grep -qw avx512f /proc/cpuinfo || continue
    LD_LIBRARY_PATH=$build "$scratch/clang_$form" "$build/liborvane_l9.so"
done

# Joined: one call and neither of its parts.
compile -mavx2 -mfma -ffunction-sections -Rpass=orvane -c "$here/joined.c" -o "$scratch/joined.o" 2>"$scratch/remarks"
[ "$(calls_of "$scratch/joined.o" | tr ' ' '\n' | sort -u | grep -v '^sincosf\?$' | xargs)" = \
    "_ZGVdN4vl8l8_sincos _ZGVdN8vl4l4_sincosf" ]
grep -q 'sine and cosine joined into one call of _ZGVdN4vl8l8_sincos \[-Rpass=orvane\]' "$scratch/remarks"
cc -O1 -DONLY_SINCOS "$here/run_loops.c" "$scratch/joined.o" -L"$build" -lorvane_vecabi -lm -o "$scratch/joined"
LD_LIBRARY_PATH=$build "$scratch/joined" "$build/liborvane_l9.so"

# A program that may look at errno keeps its calls, and is told why.
"$clang" -O2 -mavx2 -fpass-plugin="$plugin" -Rpass-missed=orvane -DC_LIBRARY_ALONE -DWITHOUT_POINTERS -ffunction-sections \
    -c "$here/loops.c" -o "$scratch/errno.o" 2>"$scratch/remarks"
calls_of "$scratch/errno.o" | grep -E "^exp exp( |$)" >/dev/null
grep -q 'call of exp may write errno and stays scalar: compile with -fno-math-errno' "$scratch/remarks"
