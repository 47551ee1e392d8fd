// Tables of the powers.
#pragma once

#include "exp/exp_tables.h"
#include "log/log_tables.h"

namespace orvane {

// In kernels' blocks. log2_tab: hi + lo = -1023 - log2 r for r = 1/2 to 1 in steps of 1/1024, hi a multiple of 2^-42.
inline constexpr table<hi_lo<double>, 513> pow_log2_pairs = {{
#include "pow/tables/log2_tab.inc"
}};
inline constexpr table<double, 256> exp2_single_256 = {{
#include "pow/tables/exp2_256.inc"
}};
// 2^(j/2048) for interpolation along chords, made slightly smaller so that the error is as large on both sides. The
// block whose entry 0 is exactly 1 gives x^0 = 1 in double.
inline constexpr table<double, 2049> exp_chords = {{
#include "pow/tables/exp_tab.inc"
}};
constexpr table<double, 2049> with_exact_one(table<double, 2049> t) {
    t.entry[0] = 1.0;
    return t;
}
inline constexpr table<double, 2049> exp_chords_from_one = with_exact_one(exp_chords);
// About 1 / (1 + i/1024) times c near 1 / ln 2, and log2 of what that takes away.
inline constexpr table<double, 1025> pown_reciprocals = {{
#include "pow/tables/rcp_tab.inc"
}};
inline constexpr table<hi_lo<double>, 1025> pown_log2_pairs = {{
#include "pow/tables/log_tab.inc"
}};
struct ln_entry {
    float hi, lo, r; // hi + lo = -ln r
};
inline constexpr table<ln_entry, 65> pown_ln_entries = {{
#include "pow/tables/ln_entries.inc"
}};

// What the scalar x^y reads: three levels of reciprocals of the significand with the base-2 logarithms of what they
// take away, the last with a factor c near 1 / ln 2; 2^(j/128); polynomials; and constants.
template <class T, int N1, int N2, int N3, int ExpTerms> struct power_table {
    T rcp1[N1];
    hi_lo<T> log1[N1];
    T rcp2[N2];
    hi_lo<T> log2nd[N2];
    T rcp3[N3];
    hi_lo<T> log3[N3];
    hi_lo<T> exp128[128];
    T lg_A[4];        // of z, z^2, ...
    T ex_B[ExpTerms]; // of r, r^2, ...
    T huge_tiny[2];   // their squares are infinite and 0
    T zero;
    T sign_tab[2];
    T shifter;  // its last place is 1/128
    T c;        // the factor of rcp3
    T split;    // Dekker's
    T up, down; // a power of two that makes subnormals normal, and back
};
extern "C" [[gnu::visibility("hidden")]] const power_table<double, 33, 33, 129, 5> __dpow_g_CoutTab;
extern "C" [[gnu::visibility("hidden")]] const power_table<float, 9, 9, 17, 3> __spow_g_CoutTab;

} // namespace orvane
