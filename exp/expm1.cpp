// expm1 and expm1f: e^x - 1 without cancellation near 0. The tables hold significand fields, to which an OR gives the
// exponent of 2^k.
#include "exp/exp_kernels.h"

namespace orvane {

ORVANE_SLOW_PATH(__orvane_dexpm1_cout_rare, const double* x, double* result);
ORVANE_SLOW_PATH(__orvane_sexpm1_cout_rare, const float* x, float* result);

struct dexpm1_block {
    TABLE(0, exp2_split, exp2_split_128)
    // Fit on |r| <= ln2/256: r + p2*r^2 + p3*r^3 + p4*r^4 + p5*r^5 = exp(r) - 1 to 2^-56.1 relative
    SLOT(double, 32, p5, 0x3F81111168877F38)          // 0.008333335878830547, polynomial
    SLOT(double, 33, p4, 0x3FA55555C2A9C0F3)          // 0.04166667939432669, polynomial
    SLOT(double, 34, p3, 0x3FC555555555541D)          // 0.166666666666658, polynomial
    SLOT(double, 35, p2, 0x3FDFFFFFFFFFFE5C)          // 0.4999999999999767, polynomial
    SLOT(double, 36, inv_ln2_128, 0x40671547652B82FE) // 184.6649652337873, 128 / ln 2
    SLOT(double, 37, ln2_128_hi, 0x3F762E42FEF80000)  // 0.005415212347998022, ln 2 / 128, high part
    SLOT(double, 38, ln2_128_lo, 0x3D41CF79ABC9E3B4)  // 1.2655086083325438e-13, low part
    SLOT(double, 39, index_shifter,
         0x42F80000001FF800)                              // 1.5 * 2^48 with the exponent bias in its low bits
    SLOT(uint64_t, 40, offset_mask, 0x00000000000007F0)   // byte offset of a table entry
    SLOT(uint64_t, 41, exponent_bits, 0x00000000003FF800) // bits of u that hold the exponent
    SLOT(double, 42, split_mask, 0xFFFFFFFFF8000000)      // clears the low 27 bits
    SLOT(double, 43, minus_one, 0xBFF0000000000000)       // -1.0
    SLOT(double, 44, abs_mask, 0x7FFFFFFFFFFFFFFF)
    SLOT(double, 45, ordinary_limit,
         0x40861DA04CBAFE43) // 707.7032713517041, a lane with abs(x) above this is special
};
struct dexpm1_native_block {
    TABLE(0, exp2_significands, exp2_significands_128)
    GAP(16, 17)
    // Fit on |r| <= ln2/256: r + p2*r^2 + p3*r^3 = exp(r) - 1 to 2^-30.2 relative
    SLOT(double, 18, p3, 0x3FC555555555541D)          // 0.166666666666658
    SLOT(double, 19, p2, 0x3FDFFFFFFFFFFE5C)          // 0.4999999999999767
    SLOT(double, 20, inv_ln2_128, 0x40671547652B82FE) // 184.6649652337873
    GAP(21, 26)
    SLOT(double, 27, minus_one, 0xBFF0000000000000) // -1.0
    SLOT(double, 28, abs_mask, 0x7FFFFFFFFFFFFFFF)
    SLOT(double, 29, ordinary_limit, 0x40861DA04CBAFE43)  // 707.7032713517041
    SLOT(double, 30, ln2_128, 0x3F762E42FEFA39EF)         // 0.0054152123481245725
    SLOT(double, 31, index_shifter, 0x43080000000FFC00)   // 1.5 * 2^49 + 128 * 1023: from bit 3 on n + 128 * 1023
    SLOT(uint64_t, 32, offset_mask, 0x00000000000003F8)   // n mod 128, times 8 bytes
    SLOT(uint64_t, 33, exponent_bits, 0x00000000001FFC00) // n / 128 + 1023
};
struct sexpm1_block {
    TABLE(0, exp2_split, exp2f_split_64)
    // Fit on |r| <= ln2/128: r + p2*r^2 + p3*r^3 = exp(r) - 1 to 2^-29.1 relative
    SLOT(float, 8, p3, 0x3E2AAABF) // 0.16666696965694427
    SLOT(float, 9, p2, 0x3F00000F) // 0.5000008940696716
    GAP(10, 11)
    SLOT(float, 12, inv_ln2_64, 0x42B8AA3B)       // 92.33248138427734
    SLOT(float, 13, ln2_64_hi, 0x3C318000)        // 0.010833740234375
    SLOT(float, 14, ln2_64_lo, 0xB65E8083)        // -3.3155381515825866e-06
    SLOT(float, 15, index_shifter, 0x49F0FE00)    // 1974208.0
    SLOT(uint32_t, 16, offset_mask, 0x000001F8)   // n mod 64, times 8 bytes
    SLOT(uint32_t, 17, exponent_bits, 0x0001FE00) // n / 64 + 127
    SLOT(float, 18, split_mask, 0xFFFFF000)       // keeps 12 significand bits
    SLOT(float, 19, minus_one, 0xBF800000)        // -1.0
    SLOT(float, 20, abs_mask, 0x7FFFFFFF)
    SLOT(float, 21, ordinary_limit, 0x42AD496B) // 86.64339447021484
};
struct sexpm1_native_block {
    TABLE(0, exp2_significands, exp2f_significands_32)
    GAP(2, 2)
    // Fit on |r| <= ln2/64: r + p2*r^2 = exp(r) - 1 to 2^-15.6 relative
    SLOT(float, 3, p2, 0x3F00000F) // 0.5000008940696716
    GAP(4, 12)
    SLOT(float, 13, minus_one, 0xBF800000) // -1.0
    SLOT(float, 14, abs_mask, 0x7FFFFFFF)
    SLOT(float, 15, ordinary_limit, 0x42AD496B)   // 86.64339447021484
    SLOT(float, 16, inv_ln2_32, 0x4238AA3B)       // 46.16624069213867
    SLOT(float, 17, ln2_32, 0x3CB17218)           // 0.021660849452018738
    SLOT(float, 18, index_shifter, 0x4A403F80)    // 3149792.0
    SLOT(uint32_t, 19, offset_mask, 0x0000007C)   // n mod 32, times 4 bytes
    SLOT(uint32_t, 20, exponent_bits, 0x00007F80) // n / 32 + 127
};
ORVANE_BLOCK(dexpm1_block, __orvane_dexpm1_data)
ORVANE_BLOCK(dexpm1_native_block, __orvane_dexpm1_native_data)
ORVANE_BLOCK(sexpm1_block, __orvane_sexpm1_data)
ORVANE_BLOCK(sexpm1_native_block, __orvane_sexpm1_native_data)

// The parts of u = n + index_shifter: byte offset of entry n mod N, and the pattern of 2^floor(n / N), whose exponent
// bias lies in the low bits of the shifter.
template <class T, int W> ORVANE_INLINE auto entry_offset(const auto& c, lanes<T, W> u) {
    return bits(u) & c.offset_mask;
}
template <int Shift, class T, int W> ORVANE_INLINE auto power_of_two_bits(const auto& c, lanes<T, W> u) {
    return (bits(u) & c.exponent_bits) << Shift;
}
template <class T, int W> ORVANE_INLINE auto beyond_expm1_limit(const auto& c, lanes<T, W> x) {
    return not_less_equal(x & c.abs_mask, c.ordinary_limit);
}

// e^x = (A + B) (1 + h + R): A = 2^k hi[j] exact, B = 2^k lo[j], r = h + l with h so short that A h is exact. A - 1,
// A h and the rest are summed with the errors of the sums.
template <class T, const auto& Block, auto& Rare> struct expm1_compensated : kernel<one_argument<T>, Block, Rare> {
    template <int W> static ORVANE_INLINE auto vector_path(const auto& c, lanes<T, W> x) {
        using V = lanes<T, W>;
        auto n = round_to<to_nearest>(x * inverse_step(c));
        auto [step_hi, step_lo] = step<W>(c);
        auto rh = fma(-n, step_hi, x);
        auto cc = n * step_lo;
        auto r = rh - cc;
        auto nothing_split_off = bits(V(as<T>(rh == x))); // all ones where n = 0

        auto h = finished(rh & as<T>(nothing_split_off | c.split_mask));
        auto l = (rh - h) - cc;
        auto r2 = r * r;
        auto R = fma(r2, polynomial(c, r, r2), l);

        in_turn(R, n); // the polynomial's registers are free again
        auto u = n + c.index_shifter;
        auto [m, lo] = lookup_pair_bytes<T>(&c.exp2_split, entry_offset(c, u));
        auto power = as<T>(power_of_two_bits < sizeof(T) == 8 ? 41 : 14 > (c, u));
        auto A = power | m;
        auto B = finished(lo * power);

        auto S = A + c.minus_one;
        auto A_is_larger = S > V(T(0));
        auto big = select(A_is_larger, A, V(c.minus_one)), small = select(A_is_larger, V(c.minus_one), A);
        auto e = B + ((big - S) + small);
        auto R2 = finished(fma(B, R + h, e));
        auto M = A * h;
        auto S2 = S + M;
        auto e2 = fma(R, A, M + (S - S2));
        auto y = S2 + (e2 + R2);
        return answer{with_sign_of(y, x), beyond_expm1_limit(c, x)};
    }

    static ORVANE_INLINE const auto& inverse_step(const auto& c) {
        if constexpr (sizeof(T) == 8) return c.inv_ln2_128;
        else return c.inv_ln2_64;
    }
    template <int W> static ORVANE_INLINE lane_pair<T, W> step(const auto& c) {
        if constexpr (sizeof(T) == 8) return {c.ln2_128_hi, c.ln2_128_lo};
        else return {c.ln2_64_hi, c.ln2_64_lo};
    }
    // (e^r - 1 - r) / r^2
    template <class V> static ORVANE_INLINE V polynomial(const auto& c, V r, V r2) {
        if constexpr (sizeof(T) == 8) return fma(r2, horner(r, c.p5, c.p4), horner(r, c.p3, c.p2));
        else return horner(r, c.p3, c.p2);
    }
};

// The same with one value per table entry, one step of reduction and one fused operation at the end.
template <class T, const auto& Block, auto& Rare> struct expm1_plain : kernel<one_argument<T>, Block, Rare> {
    template <int W> static ORVANE_INLINE auto vector_path(const auto& c, lanes<T, W> x) {
        constexpr bool is_double = sizeof(T) == 8;
        lanes<T, W> n, r;
        if constexpr (is_double) {
            n = round_to<to_nearest>(x * c.inv_ln2_128);
            r = fma(-n, c.ln2_128, x);
        } else {
            n = round_to<to_nearest>(x * c.inv_ln2_32);
            r = fma(-n, c.ln2_32, x);
        }
        auto u = n + c.index_shifter;
        auto m = lookup_bytes<T>(&c.exp2_significands, entry_offset(c, u));
        auto A = as<T>(power_of_two_bits < is_double ? 42 : 16 > (c, u)) | m;
        lanes<T, W> q;
        if constexpr (is_double) q = fma(horner(r, c.p3, c.p2), r * r, r);
        else q = fma(r * r, c.p2, r);
        auto S = A + c.minus_one;
        return answer{with_sign_of(fma(A, q, S), x), beyond_expm1_limit(c, x)};
    }
};

using dexpm1_default = expm1_compensated<double, __orvane_dexpm1_data, __orvane_dexpm1_cout_rare>;
using dexpm1_native = expm1_plain<double, __orvane_dexpm1_native_data, __orvane_dexpm1_cout_rare>;
using sexpm1_default = expm1_compensated<float, __orvane_sexpm1_data, __orvane_sexpm1_cout_rare>;
using sexpm1_native = expm1_plain<float, __orvane_sexpm1_native_data, __orvane_sexpm1_cout_rare>;

// Largest known error of expm1: 0.6104 ulp at 0xBF5001D0C354D6F7
// Largest known error of expm1, slow path: 0.517 ulp at 0x4086286A386D1842
ORVANE_EXPORT(expm1, , dexpm1_default)
// Largest known error of expm1_native: 8.3e-10 relative at 0x3F662E42FF0935C8
// Largest known error of expm1_native, slow path: 0.517 ulp at 0x4086286A386D1842
ORVANE_EXPORT(expm1, _native, dexpm1_native)
// Largest known error of expm1f: 0.5591 ulp at 0x3BEFA11B
// Largest known error of expm1f, slow path: 0.5 ulp at 0x42B0F783
ORVANE_EXPORT(expm1f, , sexpm1_default)
// Largest known error of expm1f_native: 283.7 ulp at 0x3C31723D
// Largest known error of expm1f_native, slow path: 0.5 ulp at 0x42B0F783
ORVANE_EXPORT(expm1f, _native, sexpm1_native)

} // namespace orvane
