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

// min(a, b) and max(a, b) give b on a tie. a and b are the magnitudes of x and y; where they are equal, x and y
// change places.
struct smaller {
    static ORVANE_INLINE auto of(auto x, auto y, auto, auto) { return min(x, y); }
};
struct larger {
    static ORVANE_INLINE auto of(auto x, auto y, auto, auto) { return max(x, y); }
};
struct smaller_magnitude {
    static ORVANE_INLINE auto of(auto x, auto y, auto a, auto b) {
        auto x_is = a < b, y_is = b < a;
        return select(x_is, x, select(y_is, y, min(y, x)));
    }
};
struct larger_magnitude {
    static ORVANE_INLINE auto of(auto x, auto y, auto a, auto b) {
        auto x_is = b < a, y_is = a < b;
        return select(x_is, x, select(y_is, y, max(y, x)));
    }
};

template <class T, class Choice, const auto& Pool, auto& Rare> struct selection_kernel
    : kernel<two_arguments<T>, Pool, Rare> {
    template <int W> static ORVANE_INLINE auto vector_path(const auto& c, lanes<T, W> x, lanes<T, W> y) {
        auto a = x & c.magnitude, b = y & c.magnitude;
        lane_bits<W> not_finite = marked<T, W>(max(words(a), words(b)) > c.largest_word); // x or y
        return answer{Choice::of(x, y, a, b), not_finite};
    }
};

// The four of a type share one slow path.
#define ORVANE_SELECTION(family, Choice)                                                                             \
    using d##family##_kernel = selection_kernel<double, Choice, __orvane_dfputil_pool, __orvane_dfmin_cout_rare>;    \
    using s##family##_kernel = selection_kernel<float, Choice, __orvane_sfputil_pool, __orvane_sfmin_cout_rare>;     \
    ORVANE_EXPORT(family, , d##family##_kernel)                                                                      \
    ORVANE_EXPORT(family##f, , s##family##_kernel)
ORVANE_SELECTION(fmin, smaller)
ORVANE_SELECTION(fmax, larger)
ORVANE_SELECTION(minmag, smaller_magnitude)
ORVANE_SELECTION(maxmag, larger_magnitude)

struct dfdim_block {
    SLOT(uint32_t, 0, exp_word, 0x7FF00000)
};
struct sfdim_block {
    SLOT(uint32_t, 0, exp_word, 0x7F800000)
};
ORVANE_BLOCK(dfdim_block, __orvane_dfdim_data)
ORVANE_BLOCK(sfdim_block, __orvane_sfdim_data)

template <class T, const auto& Block, auto& Rare> struct fdim_kernel : kernel<two_arguments<T>, Block, Rare> {
    template <int W> static ORVANE_INLINE auto vector_path(const auto& c, lanes<T, W> x, lanes<T, W> y) {
        auto not_finite = marked<T, W>(max(words(x) & c.exp_word, words(y) & c.exp_word) == c.exp_word);
        return answer{keep(y < x, x - y), not_finite}; // else +0
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
