#!/usr/bin/env bash
# C++ and Fortran loops by GCC, with the lines of docs/compilers.md.
#     check_languages.sh SOURCES BUILD SCRATCH
set -Eeuo pipefail
sources=$1 build=$2 scratch=$3 here=$1/tests/vecabi
. "$here/check.sh"

# C++: the float overloads ask for -fno-math-errno; std::lgamma of a float stays scalar, lgammaf does not.
c++ -std=c++20 -O3 -mavx2 -mfma -fno-math-errno -Wno-psabi -ffunction-sections -I"$sources/include" -c "$here/cpp.cpp" \
    -o "$scratch/cpp.o"
calls_of "$scratch/cpp.o" | sort >"$scratch/calls"
diff "$scratch/calls" - <<'CALLS'
exp _ZGVdN4v_exp
expf _ZGVdN8v_expf
lgamma _ZGVdN4v_lgamma
lgammaf _ZGVdN8v_lgammaf
log1pf _ZGVdN8v_log1pf
powf _ZGVdN8vv_powf
simd __orvane_l9_expf8_native __orvane_l9_logf8
sinpif _ZGVdN8v_orvane_sinpif
tgammaf _ZGVdN8v_tgammaf
CALLS
# Over simd: lanes are loaded, stay in registers from call to call and are stored.
moves=$(objdump -d --no-show-raw-insn -j .text.loop_simd "$scratch/cpp.o" | grep -c 'vmov.*ymm')
[ "$moves" = 2 ] || { echo "loop over simd: $moves moves of lanes, not 2" >&2; exit 1; }

gfortran -O3 -mavx2 -mfma -ffunction-sections -I"$sources/include" -c "$here/fortran.f90" -o "$scratch/fortran.o"
objdump -r "$scratch/fortran.o" | sed -En 's/.*(_ZGV\w+).*/\1/p' | sort -u >"$scratch/calls"
for name in _ZGVdN4v_lgamma _ZGVdN4vv_pow _ZGVdN4v_erf _ZGVdN8v_expf _ZGVdN8v_tgammaf; do
    grep -qx $name "$scratch/calls" || { echo "the Fortran loops do not call $name" >&2; exit 1; }
done
gfortran "$scratch/fortran.o" -L"$build" -lorvane_vecabi -o "$scratch/fortran"
LD_LIBRARY_PATH=$build "$scratch/fortran"
