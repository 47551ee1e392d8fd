// fmin, fmax, minmag, maxmag, fdim: a few comparisons; lanes with an infinity or a NaN go by the NaN rule of a slow
// path. fma: the processor's fused multiply-add and nothing else.
#include "fputil/words.h"
#include "frame/_orvane_template.h"
#include "frame/rare.h"

namespace orvane {

ORVANE_SLOW_PATH(__orvane_dfmin_cout_rare, const double* x, const double* y, double* result);
ORVANE_SLOW_PATH(__orvane_sfmin_cout_rare, const float* x, const float* y, float* result);
ORVANE_SLOW_PATH(__orvane_dfdim_cout_rare, const double* x, const double* y, double* result);
ORVANE_SLOW_PATH(__orvane_sfdim_cout_rare, const float* x, const float* y, float* result);

// min(a, b) and max(a, b) give b on a tie; where magnitudes are equal the operands are turned round.
struct smaller {
    static ORVANE_INLINE auto of(auto x, auto y) { return min(x, y); }
};
struct larger {
    static ORVANE_INLINE auto of(auto x, auto y) { return max(x, y); }
};
template <int W, class T> ORVANE_INLINE auto magnitude(lanes<T, W> x) { return andnot(lanes<T, W>(T(-0.0)), x); }
struct smaller_magnitude {
    template <int W, class T> static ORVANE_INLINE auto of(lanes<T, W> x, lanes<T, W> y) {
        auto a = magnitude(x), b = magnitude(y);
        return select(a < b, x, select(b < a, y, min(y, x)));
    }
};
struct larger_magnitude {
    template <int W, class T> static ORVANE_INLINE auto of(lanes<T, W> x, lanes<T, W> y) {
        auto a = magnitude(x), b = magnitude(y);
        return select(b < a, x, select(a < b, y, max(y, x)));
    }
};

template <class T, class Choice, auto& Rare> struct selection_kernel : kernel<two_arguments<T>> {
    static constexpr auto& slow_path = Rare;
    template <int W> static ORVANE_INLINE auto vector_path(const auto&, lanes<T, W> x, lanes<T, W> y) {
        return answer{Choice::of(x, y), either_not_finite(x, y)};
    }
};

// The four of a type share one slow path.
#define ORVANE_SELECTION(family, Choice)                                                                             \
    using d##family##_kernel = selection_kernel<double, Choice, __orvane_dfmin_cout_rare>;                           \
    using s##family##_kernel = selection_kernel<float, Choice, __orvane_sfmin_cout_rare>;                            \
    ORVANE_EXPORT(family, , d##family##_kernel)                                                                      \
    ORVANE_EXPORT(family##f, , s##family##_kernel)
ORVANE_SELECTION(fmin, smaller)
ORVANE_SELECTION(fmax, larger)
ORVANE_SELECTION(minmag, smaller_magnitude)
ORVANE_SELECTION(maxmag, larger_magnitude)

struct dfdim_block {
    SLOT(uint32_t, 0, exp_word, 0x7FF00000)
    GAP(1, 1)
    SLOT(double, 2, pos_zero, 0x0)
};
struct sfdim_block {
    SLOT(uint32_t, 0, exp_word, 0x7F800000)
    GAP(1, 1)
    SLOT(float, 2, pos_zero, 0x0)
};
ORVANE_BLOCK(dfdim_block, __orvane_dfdim_data)
ORVANE_BLOCK(sfdim_block, __orvane_sfdim_data)

template <class T, const auto& Block, auto& Rare> struct fdim_kernel : kernel<two_arguments<T>> {
    static constexpr auto& block = Block;
    static constexpr auto& slow_path = Rare;
    template <int W> static ORVANE_INLINE auto vector_path(const auto& c, lanes<T, W> x, lanes<T, W> y) {
        auto special = [&](auto v) ORVANE_LAMBDA { return (top_words(v) & c.exp_word) == c.exp_word; };
        return answer{select(y < x, x - y, lanes<T, W>(c.pos_zero)), special(x) | special(y)};
    }
};
using dfdim_kernel = fdim_kernel<double, __orvane_dfdim_data, __orvane_dfdim_cout_rare>;
using sfdim_kernel = fdim_kernel<float, __orvane_sfdim_data, __orvane_sfdim_cout_rare>;
ORVANE_EXPORT(fdim, , dfdim_kernel)
ORVANE_EXPORT(fdimf, , sfdim_kernel)

template <class T> struct fma_kernel : kernel<three_arguments<T>> {
    template <int W> static ORVANE_INLINE auto vector_path(const auto&, lanes<T, W> a, lanes<T, W> b, lanes<T, W> c) {
        return fma_in_order(a, b, c);
    }
};
using dfma_kernel = fma_kernel<double>;
using sfma_kernel = fma_kernel<float>;
ORVANE_EXPORT_SETTLED(fma, , dfma_kernel)
ORVANE_TWIN_SETTLED(fma, _rm, fma, )
ORVANE_EXPORT_SETTLED(fmaf, , sfma_kernel)
ORVANE_TWIN_SETTLED(fmaf, _rm, fmaf, )

} // namespace orvane
