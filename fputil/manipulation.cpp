// frexp, ldexp, ilogb, logb, nextafter: integer operations on exponent fields and patterns; zeros, subnormals,
// infinities and NaN, and results that leave the normal range, are special. nan, copysign, fabs: masks alone.
//
// Fields are worked on in place, as words() sees them: a double's in its high word, with the low word put back at the
// end.
#include "fputil/words.h"
#include "frame/_orvane_template.h"
#include "frame/rare.h"

namespace orvane {

ORVANE_SLOW_PATH(__orvane_dfrexp_cout_rare, const double* x, double* result, int32_t* out);
ORVANE_SLOW_PATH(__orvane_sfrexp_cout_rare, const float* x, float* result, int32_t* out);
ORVANE_SLOW_PATH(__orvane_dldexp_cout_rare, const double* x, const int32_t* n, double* result);
ORVANE_SLOW_PATH(__orvane_sldexp_cout_rare, const float* x, const int32_t* n, float* result);
ORVANE_SLOW_PATH(__orvane_dilogb_cout_rare, const double* x, int32_t* result);
ORVANE_SLOW_PATH(__orvane_silogb_cout_rare, const float* x, int32_t* result);
ORVANE_SLOW_PATH(__orvane_dlogb_cout_rare, const double* x, double* result);
ORVANE_SLOW_PATH(__orvane_slogb_cout_rare, const float* x, float* result);
ORVANE_SLOW_PATH(__orvane_dnextafter_cout_rare, const double* x, const double* y, double* result);
ORVANE_SLOW_PATH(__orvane_snextafter_cout_rare, const float* x, const float* y, float* result);

// The lowest bit of the exponent field in a word.
template <class T> constexpr int field_shift = sizeof(T) == 8 ? 20 : 23;

// x with words put in place of those that words() shows.
template <class T, int W, class M> ORVANE_INLINE lanes<T, W> with_words(lanes<T, W> x, M w) {
    if constexpr (sizeof(T) == 8) return (typename lanes<T, W>::raw)alternate(words(x), w).v;
    else return (typename lanes<T, W>::raw)w.v;
}
// Words in place packed into 32-bit lanes, and 32-bit lanes put in their places.
template <class T, int W, class M> ORVANE_INLINE lanes<int32_t, W> packed(M w) {
    if constexpr (sizeof(T) == 8) return as<int32_t>(high_words(marked<T, W>(w)));
    else return w;
}
template <class T, int W> ORVANE_INLINE auto in_place(lanes<int32_t, W> n) {
    if constexpr (sizeof(T) == 8) return words_in_place<int32_t>(convert<int64_t>(n) << 32);
    else return n;
}

struct dfrexp_block {
    SLOT(int32_t, 0, exp_word, 0x7FF00000)
    SLOT(int32_t, 1, zero_word, 0)
    SLOT(int32_t, 2, half_word, 0x3FE00000) // the exponent field of 0.5
};
struct sfrexp_block {
    SLOT(int32_t, 0, exp_word, 0x7F800000)
    SLOT(int32_t, 1, zero_word, 0)
    SLOT(int32_t, 2, half_word, 0x3F000000)
};
ORVANE_BLOCK(dfrexp_block, __orvane_dfrexp_data)
ORVANE_BLOCK(sfrexp_block, __orvane_sfrexp_data)

template <class T, const auto& Block, auto& Rare> struct frexp_kernel : kernel<pointer_out<T, int32_t>, Block, Rare> {
    template <int W> static ORVANE_INLINE auto vector_path(const auto& c, lanes<T, W> x) {
        auto ef = words(x) & c.exp_word;
        lane_bits<W> not_normal = marked<T, W>((ef == c.zero_word) | (ef == c.exp_word));
        auto exponent = packed<T, W>((ef - c.half_word) >> field_shift<T>);
        auto fraction = with_words(x, andnot(decltype(ef)(c.exp_word), words(x)) | c.half_word);
        return answer{fraction, exponent, not_normal};
    }
};
using dfrexp_kernel = frexp_kernel<double, __orvane_dfrexp_data, __orvane_dfrexp_cout_rare>;
using sfrexp_kernel = frexp_kernel<float, __orvane_sfrexp_data, __orvane_sfrexp_cout_rare>;
ORVANE_EXPORT(frexp, , dfrexp_kernel)
ORVANE_EXPORT(frexpf, , sfrexp_kernel)

struct dldexp_block {
    SLOT(int32_t, 0, exp_word, 0x7FF00000)
    SLOT(int32_t, 1, top_exp, 0x000007FF) // of infinities and NaNs
    SLOT(int32_t, 2, zero_word, 0)
    SLOT(int32_t, 3, n_max, 0x00010000) // further than any exponent reaches
    SLOT(int32_t, 4, n_min, 0xFFFF0000)
};
struct sldexp_block {
    SLOT(int32_t, 0, exp_word, 0x7F800000)
    SLOT(int32_t, 1, top_exp, 0x000000FF) // of infinities and NaNs
    SLOT(int32_t, 2, zero_word, 0)
    SLOT(int32_t, 3, n_max, 0x00010000) // further than any exponent reaches
    SLOT(int32_t, 4, n_min, 0xFFFF0000)
};
ORVANE_BLOCK(dldexp_block, __orvane_dldexp_data)
ORVANE_BLOCK(sldexp_block, __orvane_sldexp_data)

template <class T, const auto& Block, auto& Rare> struct ldexp_kernel : kernel<with_integer<T>, Block, Rare> {
    static constexpr double spare = 1;

    template <int W> static ORVANE_INLINE auto vector_path(const auto& c, lanes<T, W> x, lanes<int32_t, W> n) {
        auto e = (words(x) & c.exp_word) >> field_shift<T>;
        auto m = in_place<T>(max(min(n, lanes<int32_t, W>(c.n_max)), lanes<int32_t, W>(c.n_min)));
        auto s = e + m; // far from wrapping
        // x and the result are normal where both exponents are between zero and the top.
        auto normal = (min(e, s) > c.zero_word) & (max(e, s) < c.top_exp);
        auto special = lane_bits<W>::not_in(marked<T, W>(normal));
        auto scaled = (s << field_shift<T>) | andnot(decltype(s)(c.exp_word), words(x));
        return answer{with_words(x, scaled), special};
    }
};
using dldexp_kernel = ldexp_kernel<double, __orvane_dldexp_data, __orvane_dldexp_cout_rare>;
using sldexp_kernel = ldexp_kernel<float, __orvane_sldexp_data, __orvane_sldexp_cout_rare>;
ORVANE_EXPORT(ldexp, , dldexp_kernel)
ORVANE_EXPORT(ldexpf, , sldexp_kernel)

struct dlogb_block {
    SLOT(int32_t, 0, exp_word, 0x7FF00000)
    SLOT(int32_t, 1, zero_word, 0)
    SLOT(int32_t, 2, bias, 0x000003FF)
};
struct slogb_block {
    SLOT(int32_t, 0, exp_word, 0x7F800000)
    SLOT(int32_t, 1, zero_word, 0)
    SLOT(int32_t, 2, bias, 0x0000007F)
};
ORVANE_BLOCK(dlogb_block, __orvane_dlogb_data)
ORVANE_BLOCK(slogb_block, __orvane_slogb_data)
ORVANE_BLOCK_TWIN(__orvane_dilogb_data, __orvane_dlogb_data)
ORVANE_BLOCK_TWIN(__orvane_silogb_data, __orvane_slogb_data)

// The exponent of a T as an integer (ilogb) or as a T (logb).
template <class T, class To, const auto& Block, auto& Rare> struct exponent_kernel
    : kernel<conversion<T, To>, Block, Rare> {
    template <int W> static ORVANE_INLINE auto vector_path(const auto& c, lanes<T, W> x) {
        auto ef = words(x) & c.exp_word;
        lane_bits<W> not_normal = marked<T, W>((ef == c.zero_word) | (ef == c.exp_word));
        auto exponent = packed<T, W>((ef >> field_shift<T>)-c.bias);
        if constexpr (is_floating<To>) return answer{convert<To>(exponent), not_normal};
        else return answer{exponent, not_normal};
    }
};
using dilogb_kernel = exponent_kernel<double, int32_t, __orvane_dlogb_data, __orvane_dilogb_cout_rare>;
using silogb_kernel = exponent_kernel<float, int32_t, __orvane_slogb_data, __orvane_silogb_cout_rare>;
using dlogb_kernel = exponent_kernel<double, double, __orvane_dlogb_data, __orvane_dlogb_cout_rare>;
using slogb_kernel = exponent_kernel<float, float, __orvane_slogb_data, __orvane_slogb_cout_rare>;
ORVANE_EXPORT(ilogb, , dilogb_kernel)
ORVANE_EXPORT(ilogbf, , silogb_kernel)
ORVANE_EXPORT(logb, , dlogb_kernel)
ORVANE_EXPORT(logbf, , slogb_kernel)

struct dnextafter_block {
    SLOT(int32_t, 0, abs_word, 0x7FFFFFFF)
    SLOT(int32_t, 1, range_base, 0x80100000)  // takes the high word of the smallest normal to the least int32
    SLOT(int32_t, 2, range_limit, 0xFFBFFFFF) // and that of the largest number below 2^1022 here
    SLOT(int64_t, 3, step_up, 0x0000000000000001)
    SLOT(int64_t, 4, step_down, 0xFFFFFFFFFFFFFFFF)
};
struct snextafter_block {
    SLOT(int32_t, 0, abs_word, 0x7FFFFFFF)
    SLOT(int32_t, 1, range_base, 0x80800000)  // takes the smallest normal to the least int32
    SLOT(int32_t, 2, range_limit, 0xFEFFFFFF) // and the largest finite number here
    SLOT(int32_t, 3, step_up, 0x00000001)
    SLOT(int32_t, 4, step_down, 0xFFFFFFFF)
};
ORVANE_BLOCK(dnextafter_block, __orvane_dnextafter_data)
ORVANE_BLOCK(snextafter_block, __orvane_snextafter_data)

// The pattern of x moves by one: down where the signs differ or x has the larger pattern (of two negative numbers the
// smaller number has it), else up. The range test is one signed comparison, since subtracting the base wraps the
// words of subnormals and zeros to the top.
template <class T, const auto& Block, auto& Rare> struct nextafter_kernel : kernel<two_arguments<T>, Block, Rare> {
    template <int W> static ORVANE_INLINE auto vector_path(const auto& c, lanes<T, W> x, lanes<T, W> y) {
        auto a = [&](auto v) ORVANE_LAMBDA { return (words(v) & c.abs_word) - c.range_base; };
        auto i = signed_bits(x), j = signed_bits(y);
        auto sel = (i ^ j) | (i > j);
        auto st = andnot(i == j, select(sel, c.step_down, lanes<int_of<T>, W>(c.step_up)));
        auto r = as<T>(i + st);
        lane_bits<W> special = marked<T, W>(max(max(a(x), a(y)), a(r)) > c.range_limit);
        return answer{r, special};
    }
};
using dnextafter_kernel = nextafter_kernel<double, __orvane_dnextafter_data, __orvane_dnextafter_cout_rare>;
using snextafter_kernel = nextafter_kernel<float, __orvane_snextafter_data, __orvane_snextafter_cout_rare>;
ORVANE_EXPORT(nextafter, , dnextafter_kernel)
ORVANE_EXPORT(nextafterf, , snextafter_kernel)

// The bits are the payload and may reach the sign. Lane 3 of a 3-wide vector of floats comes back as 0.
template <class T> struct nan_kernel : kernel<bits_to_nan<T>> {
    static constexpr double spare = 0;
    template <int W> static ORVANE_INLINE auto vector_path(const auto&, lanes<uint_of<T>, W> payload) {
        constexpr auto quiet = sizeof(T) == 8 ? uint_of<T>(0x7FF8000000000000) : uint_of<T>(0x7FC00000);
        auto nan = as<T>(payload | lanes<uint_of<T>, W>(quiet));
        if constexpr (W == 3 && sizeof(T) == 4) return admit(nan, T(0));
        else return nan;
    }
};
using dnan_kernel = nan_kernel<double>;
using snan_kernel = nan_kernel<float>;
ORVANE_EXPORT_SETTLED(nan, , dnan_kernel)
ORVANE_EXPORT_SETTLED(nanf, , snan_kernel)

template <class T, const auto& Pool> struct copysign_kernel : kernel<two_arguments<T>, Pool> {
    template <int W> static ORVANE_INLINE auto vector_path(const auto& c, lanes<T, W> x, lanes<T, W> y) {
        return (x & c.magnitude) | (y & c.sign);
    }
};
using dcopysign_kernel = copysign_kernel<double, __orvane_dfputil_pool>;
using scopysign_kernel = copysign_kernel<float, __orvane_sfputil_pool>;
ORVANE_EXPORT_SETTLED(copysign, , dcopysign_kernel)
ORVANE_EXPORT_SETTLED(copysignf, , scopysign_kernel)

template <class T, const auto& Pool> struct fabs_kernel : kernel<one_argument<T>, Pool> {
    template <int W> static ORVANE_INLINE auto vector_path(const auto& c, lanes<T, W> x) { return x & c.magnitude; }
};
using dfabs_kernel = fabs_kernel<double, __orvane_dfputil_pool>;
using sfabs_kernel = fabs_kernel<float, __orvane_sfputil_pool>;
ORVANE_EXPORT_SETTLED(fabs, , dfabs_kernel)
ORVANE_EXPORT_SETTLED(fabsf, , sfabs_kernel)

} // namespace orvane
