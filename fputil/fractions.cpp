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
    SLOT(uint32_t, 0, sign_word, 0x80000000)
    SLOT(uint32_t, 1, exp_word, 0x7FF00000)
    SLOT(double, 2, below_one, 0x3FEFFFFFFFFFFFFF) // the largest value below 1
};
struct sfract_block {
    SLOT(uint32_t, 0, sign_word, 0x80000000)
    SLOT(uint32_t, 1, exp_word, 0x7F800000)
    SLOT(float, 2, below_one, 0x3F7FFFFF)
};
ORVANE_BLOCK(dfract_block, __orvane_dfract_data)
ORVANE_BLOCK(sfract_block, __orvane_sfract_data)

template <class T, const auto& Block, auto& Rare> struct fract_kernel : kernel<pointer_out<T>> {
    static constexpr auto& block = Block;
    static constexpr auto& slow_path = Rare;

    template <int W> static ORVANE_INLINE auto vector_path(const auto& c, lanes<T, W> x) {
        auto F = round_to<downward>(x);
        auto f = min(x - F, lanes<T, W>(c.below_one)); // for small negative x the difference rounds to 1

        auto high = top_words(x), magnitude = andnot(lanes<uint32_t, W>(c.sign_word), high);
        auto zero = (magnitude | rest_of_words(x)) == lanes<uint32_t, W>(0u);
        return answer{f, F, zero | ((high & c.exp_word) == c.exp_word)};
    }
};
using dfract_kernel = fract_kernel<double, __orvane_dfract_data, __orvane_dfract_cout_rare>;
using sfract_kernel = fract_kernel<float, __orvane_sfract_data, __orvane_sfract_cout_rare>;
ORVANE_EXPORT(fract, , dfract_kernel)
ORVANE_EXPORT(fractf, , sfract_kernel)

template <class T, auto& Rare> struct modf_kernel : kernel<pointer_out<T>> {
    static constexpr auto& slow_path = Rare;

    template <int W> static ORVANE_INLINE auto vector_path(const auto&, lanes<T, W> x) {
        auto whole = round_to<toward_zero>(x);
        auto fraction = (x & lanes<T, W>(T(-0.0))) | (x - whole); // a zero takes the sign of x
        return answer{fraction, whole, not_finite(x)};
    }
};
using dmodf_kernel = modf_kernel<double, __orvane_dmodf_cout_rare>;
using smodf_kernel = modf_kernel<float, __orvane_smodf_cout_rare>;
ORVANE_EXPORT(modf, , dmodf_kernel)
ORVANE_EXPORT(modff, , smodf_kernel)

} // namespace orvane
