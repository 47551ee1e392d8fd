// powf: x^y.
#include "pow/pow_kernels.h"

namespace orvane {

ORVANE_SLOW_PATH(__orvane_spow_cout_rare, const float* x, const float* y, float* result);

// The reduced double kernel on widened lanes, with a shorter polynomial. Overflow and underflow come from the
// narrowing.
struct powf_in_double : kernel<two_arguments<float>, __orvane_spow_data, __orvane_spow_cout_rare> {
    template <int W> static ORVANE_INLINE lane_bits<W> too_large(const spow_block& c, lanes<double, W> P) {
        return high_word_exceeds(P, c.word_abs2, c.p_word_limit2);
    }
    template <int W>
    static ORVANE_INLINE auto vector_path(const spow_block& c, lanes<float, W> x, lanes<float, W> y) {
        lane_bits<W> special = pattern_out_of_range(x, c.x_bias, c.x_limit);
        if constexpr (W == 8) {
            // The steps of both halves side by side, stage by stage: one chain after the other would wait for itself.
            auto x_low = convert<double>(low_half(x)), x_high = convert<double>(high_half(x));
            auto r_low = reduce_for_ln(c, x_low), r_high = reduce_for_ln(c, x_high);
            r_low.u = finished(r_low.u), r_high.u = finished(r_high.u);
            auto ln_low = finished(reduced_ln<3>(c, x_low, r_low)),
                 ln_high = finished(reduced_ln<3>(c, x_high, r_high));
            auto P_low = finished(convert<double>(low_half(y)) * ln_low);
            auto P_high = finished(convert<double>(high_half(y)) * ln_high);
            special.v |= too_large(c, P_low).v | too_large(c, P_high).v << 4;
            auto low = chord_exp(c, P_low), high = chord_exp(c, P_high);
            return answer{join(convert<float>(low), convert<float>(high)), special};
        } else {
            auto P = convert<double>(y) * reduced_ln<3>(c, convert<double>(x));
            special.v |= too_large(c, P).v;
            return answer{convert<float>(chord_exp(c, P)), special};
        }
    }
};
using powf_fast = powf_by_polynomials<__orvane_spow_rm_data, __orvane_spow_cout_rare>;

// Largest known error of powf: 1.099 ulp at 0x3F7FB80F,0x479A13FA, with one processor's estimates
// Largest known error of powf, slow path: 0.8057 ulp at 0xBF7FE02D,0x482FDD40
ORVANE_EXPORT(powf, , powf_in_double)
// Largest known error of powf_rm: 2061 ulp at 0x3FA66B58,0xC3A06D0A
// Largest known error of powf_rm, slow path: 0.7829 ulp at 0x3F7FFFDB,0x4C173CCE
ORVANE_EXPORT(powf, _rm, powf_fast)
ORVANE_TWIN(powf, _native, powf, _rm)

} // namespace orvane
