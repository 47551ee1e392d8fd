// The blocks of floating lanes to 64-bit integers; signed and unsigned results differ in the ends of the range.
#pragma once

#include "convert/fp_to_integer.h"

namespace orvane {

template <bool Signed> struct d_to_64_block {
    SLOT(uint64_t, 0, mant_mask, 0x000FFFFFFFFFFFFF)
    GAP(1, 1)
    SLOT(uint64_t, 2, implicit_bit, 0x0010000000000000)
    SLOT(uint64_t, 3, shift_bias, 0x0000000000000433) // 1075: the lowest significand bit is the unit bit
    SLOT(double, 4, two52, 0x4330000000000000)
    GAP(5, 5)
    SLOT(int32_t, 6, two52_word, 0x43300000)
    SLOT(int32_t, 7, limit_word, Signed ? 0x43E00000 : 0x43F00000) // of 2^63, 2^64
    SLOT(int64_t, 8, sat_neg64, 0x8000000000000000)
    SLOT(int64_t, 9, sat_pos64, Signed ? 0x7FFFFFFFFFFFFFFF : 0xFFFFFFFFFFFFFFFF)

    const auto& shifter() const { return two52; }
    // On high words, for which there is a cheap comparison. All words are compared in place; a lane's sign is that of
    // its high word, and a select looks at nothing else.
    template <int W> ORVANE_INLINE auto below_shifter(lanes<double, W> eb) const { return below(eb, two52_word); }
    template <int W> ORVANE_INLINE auto in_range(lanes<double, W> eb) const { return below(eb, limit_word); }
    template <int W> static ORVANE_INLINE auto below(lanes<double, W> eb, const auto& word) {
        return lanes<int64_t, W>((typename lanes<int64_t, W>::raw)(words_in_place<int32_t>(eb) < word).v);
    }
};

template <bool Signed> struct s_to_64_block {
    SLOT(uint32_t, 0, mant_mask, 0x007FFFFF)
    SLOT(uint32_t, 1, implicit_bit, 0x00800000)
    GAP(2, 2)
    SLOT(uint32_t, 3, shift_bias, 0x00000096) // 150
    SLOT(float, 4, two23, 0x4B000000)
    SLOT(float, 5, limit, Signed ? 0x5F000000 : 0x5F800000) // 2^63, 2^64
    SLOT(int64_t, 6, sat_neg64, 0x8000000000000000)
    SLOT(int64_t, 7, sat_pos64, Signed ? 0x7FFFFFFFFFFFFFFF : 0xFFFFFFFFFFFFFFFF)

    const auto& shifter() const { return two23; }
    template <int W> ORVANE_INLINE auto below_shifter(lanes<float, W> eb) const { return widen(eb < two23); }
    template <int W> ORVANE_INLINE auto in_range(lanes<float, W> eb) const { return widen(eb < limit); }
};

} // namespace orvane
