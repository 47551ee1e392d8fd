// powf: x^y.
#include "pow/pow_kernels.h"

namespace orvane {

ORVANE_SLOW_PATH(__orvane_spow_cout_rare, const float* x, const float* y, float* result);

// The reduced double kernel on widened lanes, with a shorter polynomial. Overflow and underflow come from the
// narrowing.
struct powf_in_double : kernel<two_arguments<float>, __orvane_spow_data, __orvane_spow_cout_rare> {
    template <int W> struct widened {
        lanes<float, W> y;
        lane_bits<W> special;
    };
    template <int W>
    static ORVANE_INLINE widened<W> power(const spow_block& c, lanes<float, W> x, lanes<float, W> y) {
        auto P = convert<double>(y) * reduced_ln<3>(c, convert<double>(x));
        lane_bits<W> beyond = high_word_exceeds(P, c.word_abs2, c.p_word_limit2);
        return {convert<float>(chord_exp(c, P)), beyond};
    }
    template <int W>
    static ORVANE_INLINE auto vector_path(const spow_block& c, lanes<float, W> x, lanes<float, W> y) {
        lane_bits<W> special = pattern_out_of_range(x, c.x_bias, c.x_limit);
        if constexpr (W == 8) {
            auto low = power(c, low_half(x), low_half(y));
            low.y = finished(low.y);
            auto high = power(c, high_half(x), high_half(y));
            special.v |= low.special.v | high.special.v << 4;
            return answer{join(low.y, high.y), special};
        } else {
            auto p = power(c, x, y);
            special.v |= p.special.v;
            return answer{p.y, special};
        }
    }
};
using powf_fast = powf_by_polynomials<__orvane_spow_rm_data, __orvane_spow_cout_rare>;

// Largest known error of powf: 1.083 ulp at 0x3F7FB82D,0x479A59C8, with one processor's estimates
// Largest known error of powf, slow path: 0.8057 ulp at 0xBF7FE02D,0x482FDD40
ORVANE_EXPORT(powf, , powf_in_double)
// Largest known error of powf_rm: 2061 ulp at 0x3FA66B58,0xC3A06D0A
// Largest known error of powf_rm, slow path: 0.7829 ulp at 0x3F7FFFDB,0x4C173CCE
ORVANE_EXPORT(powf, _rm, powf_fast)
ORVANE_TWIN(powf, _native, powf, _rm)

} // namespace orvane
