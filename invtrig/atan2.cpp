// atan2 and atan2pi: the quotient of the smaller by the larger magnitude, one polynomial for the first octant, and
// the quadrant by signs and one addition.
#include "frame/rare.h"
#include "invtrig/atan_kernels.h"

namespace orvane {

ORVANE_SLOW_PATH(__orvane_datan2_cout_rare, const double* y, const double* x, double* result);
ORVANE_SLOW_PATH(__orvane_satan2_cout_rare, const float* y, const float* x, float* result);
ORVANE_SLOW_PATH(__orvane_datan2pi_cout_rare, const double* y, const double* x, double* result);
ORVANE_SLOW_PATH(__orvane_satan2pi_cout_rare, const float* y, const float* x, float* result);

// Fit on |q| <= 1: q + q^3*atan2_accurate(q^2) = atan(q) to 2^-53.8 relative
inline constexpr coefficients<double, 19> atan2_accurate = {
    {0xBEF4FDB537ABC7A3, 0x3F2CED0A36665209, 0xBF52E67C93954C23, 0x3F6F5A1DAE82AFB3, 0xBF82B2EC618E4BAD,
     0x3F914F4C661116A5, 0xBF9A5E83B081F69C, 0x3FA169980CB6AD4F, 0xBFA4EFA2E563C1BC, 0x3FA7EC0FBC50683B,
     0xBFAAD261EAA09954, 0x3FAE1749BD612DCF, 0xBFB11084009435E0, 0x3FB3B12A49295651, 0xBFB745D009BADA94,
     0x3FBC71C707F7D5B5, 0xBFC2492491EE55C7, 0x3FC999999997EE34, 0xBFD55555555553C5}};

struct datan2_block {
    SLOT(double, 0, turn, 0x400921FB54442D18)         // pi
    SLOT(double, 1, quarter_turn, 0x3FF921FB54442D18) // pi/2
    GAP(2, 3)
    TABLE(4, poly, atan2_accurate)
    GAP(23, 23)
    RANGE_SLOTS(24)
    SLOT(double, 28, zero, 0x0)
};
ORVANE_BLOCK(datan2_block, __orvane_datan2_data)
struct datan2_native_block {
    SLOT(double, 0, turn, 0x400921FB54442D18)         // pi
    SLOT(double, 1, quarter_turn, 0x3FF921FB54442D18) // pi/2
    TABLE(2, poly, atan_fast)
    RANGE_SLOTS(12)
    SLOT(double, 16, zero, 0x0)
    WORD_ESTIMATE_SLOTS(17)
};
ORVANE_BLOCK(datan2_native_block, __orvane_datan2_native_data)
struct datan2pi_block {
    SLOT(double, 0, turn, 0x3FF0000000000000)
    SLOT(double, 1, quarter_turn, 0x3FE0000000000000)
    TABLE(2, poly, atanpi_accurate)
    RANGE_SLOTS(24)
    SLOT(double, 28, zero, 0x0)
    WORD_ESTIMATE_SLOTS(29)
};
ORVANE_BLOCK(datan2pi_block, __orvane_datan2pi_data)
struct datan2pi_native_block {
    SLOT(double, 0, turn, 0x3FF0000000000000)
    SLOT(double, 1, quarter_turn, 0x3FE0000000000000)
    TABLE(2, poly, atanpi_fast)
    RANGE_SLOTS(12)
    SLOT(double, 16, zero, 0x0)
    WORD_ESTIMATE_SLOTS(17)
};
ORVANE_BLOCK(datan2pi_native_block, __orvane_datan2pi_native_data)
struct satan2_block {
    SLOT(float, 0, zero, 0x00000000)
    GAP(1, 2)
    SLOT(float, 3, sign_mask, 0x80000000)
    SLOT(float, 4, abs_mask, 0x7FFFFFFF)
    SLOT(float, 5, quarter_turn, 0x3FC90FDB) // pi/2
    SLOT(float, 6, turn, 0x40490FDB)         // pi
    TABLE(7, poly, atanf_accurate)
    SLOT(int32_t, 16, bits_bias, 0x81000000)  // takes 2^-125 to the least int32
    SLOT(int32_t, 17, bits_limit, 0xFC000000) // and 2^123 here
};
ORVANE_BLOCK(satan2_block, __orvane_satan2_data)
struct satan2_native_block {
    SLOT(float, 0, zero, 0x00000000)
    GAP(1, 1)
    SLOT(float, 2, two, 0x40000000)
    SLOT(float, 3, sign_mask, 0x80000000)
    SLOT(float, 4, abs_mask, 0x7FFFFFFF)
    SLOT(float, 5, quarter_turn, 0x3FC90FDB) // pi/2
    SLOT(float, 6, turn, 0x40490FDB)         // pi
    TABLE(7, poly, atanf_fast)
    SLOT(int32_t, 11, bits_bias, 0x81000000)  // takes 2^-125 to the least int32
    SLOT(int32_t, 12, bits_limit, 0xFC000000) // and 2^123 here
};
ORVANE_BLOCK(satan2_native_block, __orvane_satan2_native_data)
struct satan2pi_block {
    SLOT(float, 0, abs_mask, 0x7FFFFFFF)
    GAP(1, 2)
    SLOT(float, 3, zero, 0x00000000)
    GAP(4, 4)
    SLOT(float, 5, sign_mask, 0x80000000)
    SLOT(float, 6, quarter_turn, 0x3F000000)
    SLOT(float, 7, turn, 0x3F800000)
    TABLE(8, poly, atanpif_accurate)
    SLOT(int32_t, 17, bits_bias, 0x81000000)  // takes 2^-125 to the least int32
    SLOT(int32_t, 18, bits_limit, 0xFC000000) // and 2^123 here
};
ORVANE_BLOCK(satan2pi_block, __orvane_satan2pi_data)
struct satan2pi_native_block {
    SLOT(float, 0, abs_mask, 0x7FFFFFFF)
    SLOT(float, 1, zero, 0x00000000)
    SLOT(float, 2, sign_mask, 0x80000000)
    SLOT(float, 3, quarter_turn, 0x3F000000)
    SLOT(float, 4, turn, 0x3F800000)
    SLOT(float, 5, two, 0x40000000)
    TABLE(6, poly, atanpif_fast)
    SLOT(int32_t, 10, bits_bias, 0x81000000)  // takes 2^-125 to the least int32
    SLOT(int32_t, 11, bits_limit, 0xFC000000) // and 2^123 here
};
ORVANE_BLOCK(satan2pi_native_block, __orvane_satan2pi_native_data)

// How a kernel puts the octant together: the value of atan on q, and `add`, a quarter of a turn or 0, beside it.
struct two_chains_fused {
    template <class V> static ORVANE_INLINE V octant(const auto& p, V q, V add) {
        return fma(two_chains<std::remove_cvref_t<decltype(p)>::count>(q * q, p), q, add);
    }
};
struct two_chains_summed {
    template <class V> static ORVANE_INLINE V octant(const auto& p, V q, V add) {
        return add + q * two_chains<std::remove_cvref_t<decltype(p)>::count>(q * q, p);
    }
};
struct horner_summed {
    template <class V> static ORVANE_INLINE V octant(const auto& p, V q, V add) { return add + q * horner(q * q, p); }
};
// Four chains in s^4: atan q = q + q U, U a multiple of s = q^2.
struct four_chains {
    template <class V> static ORVANE_INLINE V octant(const auto& p, V q, V add) {
        V s = q * q, s2 = s * s, s4 = s2 * s2;
        V U = s4 * chain<3, 4, 19>(s4, p);
        U = fma(s, chain<2, 4, 19>(s4, p), U);
        V A = fma(s, chain<0, 4, 19>(s4, p), chain<1, 4, 19>(s4, p));
        U = fma(s2, A, U);
        return fma(U, q, q) + add;
    }
};

// Octant and quadrant; Ties says whether |y| = |x| is turned round. All lanes out of range are special.
template <class T, const auto& Block, auto& Rare, class Quotient, class Polynomial, bool Ties> struct atan2_in_range
    : kernel<two_arguments<T>, Block, Rare> {
    static constexpr bool staged = sizeof(T) == 8;

    template <class V> static ORVANE_INLINE auto is_turned(V ay, V ax) {
        return Ties ? not_less(ay, ax) : not_less_equal(ay, ax);
    }
    template <int W> static ORVANE_INLINE auto prepare(const auto& c, lanes<T, W> y, lanes<T, W> x) {
        using V = lanes<T, W>;
        V ax = x & c.abs_mask, ay = y & c.abs_mask;
        auto special = out_of_range<T, W>(c, max(biased_words(c, ax), biased_words(c, ay)));
        V num = min(ay, ax) | keep(is_turned(ay, ax), V(c.sign_mask)); // -|x| / |y| beyond the diagonal
        return results{V(Quotient::of(c, num, max(ay, ax))), special};
    }
    template <int W>
    static ORVANE_INLINE auto vector_path(const auto& c, lanes<T, W> y, lanes<T, W> x, auto divided) {
        using V = lanes<T, W>;
        auto [q, special] = divided;
        V ax = x & c.abs_mask, ay = y & c.abs_mask;
        auto turned = is_turned(ay, ax);
        V r = Polynomial::octant(c.poly, q, keep(turned, V(c.quarter_turn)));
        r = (r | (x & c.sign_mask)) + keep(x <= V(c.zero), V(c.turn));
        return answer{r | (y & c.sign_mask), special};
    }
};

// Lanes with a zero beside a number, which may be infinite, need no slow path either.
template <class InRange> struct atan2_with_zeros : InRange {
    template <int W, class V, class A> static ORVANE_INLINE auto settle(const auto& c, V y, V x, A a) {
        V ax = x & c.abs_mask, ay = y & c.abs_mask, zero = c.zero;
        auto fix = ordered(x, y) & ((ax == zero) | (ay == zero));
        V add = keep(zero < ay, V(c.quarter_turn)); // x is 0 then
        // By the sign bit, so that -0 counts.
        V turn = keep(signed_bits(x) < decltype(fix)(0), V(c.turn));
        V r = ((add | (x & c.sign_mask)) + turn) | (y & c.sign_mask);
        return answer{select(fix, r, a.first), andnot(fix, a.special)};
    }
};

#define ORVANE_ATAN2(d, family, tier, element, Quotient, Polynomial, ties)                                           \
    atan2_in_range<element, __orvane_##d##family##tier##_data, __orvane_##d##family##_cout_rare, Quotient,           \
                   Polynomial, ties>
using atan2_default = atan2_with_zeros<ORVANE_ATAN2(d, atan2, , double, by_division, four_chains, true)>;
using atan2_native =
    atan2_with_zeros<ORVANE_ATAN2(d, atan2, _native, double, word_estimate_fused, two_chains_fused, true)>;
using atan2f_default = atan2_with_zeros<ORVANE_ATAN2(s, atan2, , float, by_division, two_chains_fused, true)>;
using atan2f_native = atan2_with_zeros<ORVANE_ATAN2(s, atan2, _native, float, newton_fused, two_chains_fused, true)>;
using atan2pi_default = ORVANE_ATAN2(d, atan2pi, , double, word_estimate_long, horner_summed, false);
using atan2pi_native = ORVANE_ATAN2(d, atan2pi, _native, double, word_estimate_short, two_chains_summed, false);
using atan2pif_default = ORVANE_ATAN2(s, atan2pi, , float, by_division, horner_summed, false);
using atan2pif_native = ORVANE_ATAN2(s, atan2pi, _native, float, newton, two_chains_summed, false);
// Largest known error of atan2: 3.302 ulp at 0x3FF59ADA9F6FE3A9,0x3FF5924D17A1157B
// Largest known error of atan2, slow path: 0.5143 ulp at 0x7F38E71D808E665D,0x7F692E25BB918038
ORVANE_EXPORT(atan2, , atan2_default)
// Largest known error of atan2_native: 2.427e-09 relative at 0x3FEFA35DAC1970EB,0x4019D2FFFFE78DE5, with one processor's estimates
// Largest known error of atan2_native, slow path: 0.5092 ulp at 0x000597A4B02301B8,0x002683957D9ECC38
ORVANE_EXPORT(atan2, _native, atan2_native)
// Largest known error of atan2f: 3.406 ulp at 0x3FC0FFF9,0x4036911B
// Largest known error of atan2f, slow path: 0.5 ulp at 0x40A9837D,0x7D114C1C
ORVANE_EXPORT(atan2f, , atan2f_default)
// Largest known error of atan2f_native: 3774 ulp at 0xBF7D6725,0x667D68FA, with one processor's estimates
// Largest known error of atan2f_native, slow path: 0.5 ulp at 0x40A9837D,0x7D114C1C
ORVANE_EXPORT(atan2f, _native, atan2f_native)
// Largest known error of atan2pi: 3.776 ulp at 0xBFEFC43DB9064DAD,0x3FEFFFFFFFE3C9AD, with one processor's estimates
// Largest known error of atan2pi, slow path: 0.75 ulp at 0x400AD3062B88CA30,0x7FD1D9453A574B0D
ORVANE_EXPORT(atan2pi, , atan2pi_default)
// Largest known error of atan2pi_native: 2.427e-09 relative at 0x3FEFA3129C39107E,0x4019D2FFFFF83195, with one processor's estimates
// Largest known error of atan2pi_native, slow path: 0.75 ulp at 0x801D4353621FAF6D,0x3FE8328CE5BA67F1
ORVANE_EXPORT(atan2pi, _native, atan2pi_native)
// Largest known error of atan2pif: 2.832 ulp at 0x3F800012,0x3F809987
// Largest known error of atan2pif, slow path: 0.5 ulp at 0x84B9AFB9,0x00A2DC1B
ORVANE_EXPORT(atan2pif, , atan2pif_default)
// Largest known error of atan2pif_native: 3774 ulp at 0xBB412921,0x40F5F0F5, with one processor's estimates
// Largest known error of atan2pif_native, slow path: 0.5 ulp at 0x84B9AFB9,0x00A2DC1B
ORVANE_EXPORT(atan2pif, _native, atan2pif_native)

} // namespace orvane
