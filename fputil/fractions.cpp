// fract and modf: the two ways to take a number apart at the point, the fraction as result and the rest as out-lane.
#include "fputil/words.h"
#include "frame/_orvane_template.h"
#include "frame/rare.h"

namespace orvane {

ORVANE_SLOW_PATH(__orvane_dfract_cout_rare, const double* x, double* result, double* out);
ORVANE_SLOW_PATH(__orvane_sfract_cout_rare, const float* x, float* result, float* out);
ORVANE_SLOW_PATH(__orvane_dmodf_cout_rare, const double* x, double* result, double* out);
ORVANE_SLOW_PATH(__orvane_smodf_cout_rare, const float* x, float* result, float* out);

struct dfract_block {
    GAP(0, 0)
    SLOT(uint32_t, 1, exp_word, 0x7FF00000)
    SLOT(double, 2, below_one, 0x3FEFFFFFFFFFFFFF) // the largest value below 1
};
struct sfract_block {
    GAP(0, 0)
    SLOT(uint32_t, 1, exp_word, 0x7F800000)
    SLOT(float, 2, below_one, 0x3F7FFFFF) // 1 - 2^-24
};
ORVANE_BLOCK(dfract_block, __orvane_dfract_data)
ORVANE_BLOCK(sfract_block, __orvane_sfract_data)

template <class T, const auto& Block, auto& Rare> struct fract_kernel : kernel<pointer_out<T>, Block, Rare> {
    template <int W> static ORVANE_INLINE auto vector_path(const auto& c, lanes<T, W> x) {
        auto zero = (bits(x) << 1) == lanes<uint_of<T>, W>(0); // of either sign
        auto not_finite = marked<T, W>((words(x) & c.exp_word) == c.exp_word);
        auto F = round_to<downward>(x);
        auto f = min(x - F, lanes<T, W>(c.below_one)); // for small negative x the difference rounds to 1
        return answer{f, F, zero | not_finite};
    }
};
using dfract_kernel = fract_kernel<double, __orvane_dfract_data, __orvane_dfract_cout_rare>;
using sfract_kernel = fract_kernel<float, __orvane_sfract_data, __orvane_sfract_cout_rare>;
ORVANE_EXPORT(fract, , dfract_kernel)
ORVANE_EXPORT(fractf, , sfract_kernel)

template <class T, const auto& Pool, auto& Rare> struct modf_kernel : kernel<pointer_out<T>, Pool, Rare> {
    template <int W> static ORVANE_INLINE auto vector_path(const auto& c, lanes<T, W> x) {
        auto not_finite = marked<T, W>(words(x & c.magnitude) > c.largest_word);
        auto whole = round_to<toward_zero>(x);
        auto fraction = (x & c.sign) | (x - whole); // a zero takes the sign of x
        return answer{fraction, whole, not_finite};
    }
};
using dmodf_kernel = modf_kernel<double, __orvane_dfputil_pool, __orvane_dmodf_cout_rare>;
using smodf_kernel = modf_kernel<float, __orvane_sfputil_pool, __orvane_smodf_cout_rare>;
ORVANE_EXPORT(modf, , dmodf_kernel)
ORVANE_EXPORT(modff, , smodf_kernel)

} // namespace orvane
