// ceil, floor, trunc, rint, nearbyint: one rounding instruction. round: that instruction, mended to ties away from
// zero.
#include "frame/_orvane_template.h"

namespace orvane {

template <class T, rounding R> struct rounding_kernel : kernel<one_argument<T>> {
    template <int W> static ORVANE_INLINE auto vector_path(const auto&, lanes<T, W> x) { return round_to<R>(x); }
};

using ceil_kernel = rounding_kernel<double, upward>;
using ceilf_kernel = rounding_kernel<float, upward>;
using floor_kernel = rounding_kernel<double, downward>;
using floorf_kernel = rounding_kernel<float, downward>;
using trunc_kernel = rounding_kernel<double, toward_zero>;
using truncf_kernel = rounding_kernel<float, toward_zero>;
using rint_kernel = rounding_kernel<double, by_mode>;
using rintf_kernel = rounding_kernel<float, by_mode>;
using nearbyint_kernel = rounding_kernel<double, by_mode_quietly>;
using nearbyintf_kernel = rounding_kernel<float, by_mode_quietly>;

ORVANE_EXPORT_SETTLED(ceil, , ceil_kernel)
ORVANE_EXPORT_SETTLED(ceilf, , ceilf_kernel)
ORVANE_EXPORT_SETTLED(floor, , floor_kernel)
ORVANE_EXPORT_SETTLED(floorf, , floorf_kernel)
ORVANE_EXPORT_SETTLED(trunc, , trunc_kernel)
ORVANE_EXPORT_SETTLED(truncf, , truncf_kernel)
ORVANE_EXPORT_SETTLED(rint, , rint_kernel)
ORVANE_EXPORT_SETTLED(rintf, , rintf_kernel)
ORVANE_EXPORT_SETTLED(nearbyint, , nearbyint_kernel)
ORVANE_EXPORT_SETTLED(nearbyintf, , nearbyintf_kernel)

struct dround_block {
    SLOT(double, 0, sign_mask, 0x8000000000000000)
    SLOT(double, 1, half, 0x3FE0000000000000)
    SLOT(double, 2, one, 0x3FF0000000000000)
};
struct sround_block {
    SLOT(float, 0, sign_mask, 0x80000000)
    SLOT(float, 1, half, 0x3F000000)
    SLOT(float, 2, one, 0x3F800000)
};
ORVANE_BLOCK(dround_block, __orvane_dround_data)
ORVANE_BLOCK(sround_block, __orvane_sround_data)

// Rounds ties to even first; where that rounded a tie down, exactly one half is left, and the result goes up by one.
// From 2^52 (2^23) on nothing is left, so the formula holds for all sizes.
template <class T, const auto& Block> struct round_kernel : kernel<one_argument<T>, Block> {
    template <int W> static ORVANE_INLINE auto vector_path(const auto& c, lanes<T, W> x) {
        auto a = andnot(lanes<T, W>(c.sign_mask), x);
        auto s = x & c.sign_mask;
        auto r = round_to<to_nearest>(a);
        auto t = a - r;
        r = r + keep(t == c.half, lanes<T, W>(c.one));
        return s | r;
    }
};
using dround_kernel = round_kernel<double, __orvane_dround_data>;
using sround_kernel = round_kernel<float, __orvane_sround_data>;
ORVANE_EXPORT_SETTLED(round, , dround_kernel)
ORVANE_EXPORT_SETTLED(roundf, , sround_kernel)

} // namespace orvane
