// Table lookups from memory: one load per live lane, or one per row, assembled in registers. There is no gather
// instruction here: on the processors measured it is slower than its loads.
#pragma once

#include "lanes.h"

namespace orvane {

// One entry per lane; the index counts entries.
namespace detail {
template <class T> ORVANE_INLINE T load(const void* at) {
    T x;
    __builtin_memcpy(&x, at, sizeof x);
    return x;
}
// Where the entries of the lanes lie: `Scale` times the index above a base.
struct two_addresses {
    const char *first, *second;
};
template <int Scale, class I, int W> struct addresses {
    const char* base;
    typename lanes<I, W>::raw index;

    ORVANE_INLINE addresses(const void* base, lanes<I, W> index)
        : base((const char*)base), index(in_register(index.v)) {} // elements of a variable would keep it in memory
    ORVANE_INLINE const char* operator()(int i) const { return base + Scale * int64_t(index[i]); }
    // Of lanes i and i + 1. Short indices leave their register two at a time: the way to a general register is
    // narrow.
    ORVANE_INLINE two_addresses two(int i) const {
        if constexpr (W >= 3 && sizeof(I) == 4) {
            using word = std::conditional_t<std::is_signed_v<I>, int64_t, uint64_t>;
            using words = std::conditional_t<W == 8, __v4di, __v2di>;
            word both = ((words)index)[i / 2];
            asm("" : "+r"(both));
            return {base + Scale * int64_t(I(both)), base + Scale * int64_t(both >> 32)};
        } else return {(*this)(i), (*this)(i + 1)};
    }
};
// Each entry goes from memory to its lane: left to itself the compiler takes some through further registers.
template <class T, int W, class At> ORVANE_INLINE lanes<T, W> assemble(At at) {
    using V = lanes<T, W>;
    using raw = typename V::raw;
    if constexpr (W == 1) return V(load<T>(at(0)));
    else if constexpr (sizeof(T) == 8) {
        auto two = [&](int i) ORVANE_LAMBDA {
            const auto [p, q] = at.two(i);
            return _mm_loadh_pd(_mm_load_sd((const double*)p), (const double*)q);
        };
        const __m128d low = two(0);
        if constexpr (V::is_wide) return V((raw)_mm256_set_m128d(two(2), low));
        else return V((raw)low);
    } else {
        auto two = [&](int i) ORVANE_LAMBDA {
            const auto [p, q] = at.two(i);
            return _mm_insert_epi32(_mm_cvtsi32_si128(load<int32_t>(p)), load<int32_t>(q), 1);
        };
        auto four = [&](int i) ORVANE_LAMBDA {
            const __m128i low = two(i);
            const auto [p, q] = at.two(i + 2);
            return _mm_insert_epi32(_mm_insert_epi32(low, load<int32_t>(p), 2), load<int32_t>(q), 3);
        };
        if constexpr (W == 2) {
            const __m128i both = two(0);
            return V((raw)_mm_unpacklo_epi64(both, both));
        } else {
            const __m128i low = four(0);
            if constexpr (V::is_wide) return V((raw)_mm256_set_m128i(four(4), low));
            else return V((raw)low);
        }
    }
}
} // namespace detail
template <class T, class I, int W> ORVANE_INLINE lanes<T, W> lookup(const T* table, lanes<I, W> index) {
    return detail::assemble<T, W>(detail::addresses<sizeof(T), I, W>(table, index));
}
// The same at byte offsets from a base, for indices that come scaled out of the bits of a sum.
template <class T, class I, int W> ORVANE_INLINE lanes<T, W> lookup_bytes(const void* base, lanes<I, W> offset) {
    return detail::assemble<T, W>(detail::addresses<1, I, W>(base, offset));
}
// Pairs (first, second) that stand side by side: one load per lane gives both.
template <class T, int W> struct lane_pair { lanes<T, W> first, second; };
namespace detail {
template <class T, int W, class At> ORVANE_INLINE lane_pair<T, W> assemble_pair(At at) {
    using V = lanes<T, W>;
    if constexpr (W == 1) {
        const char* p = at(0);
        return {V(load<T>(p)), V(load<T>(p + sizeof(T)))};
    } else if constexpr (sizeof(T) == 8) {
        auto pair = [](const char* p) ORVANE_LAMBDA { return _mm_loadu_pd((const double*)p); };
        const auto [a0, a1] = at.two(0);
        __m128d p0 = pair(a0), p1 = pair(a1);
        if constexpr (W == 2)
            return {V((typename V::raw)_mm_unpacklo_pd(p0, p1)), V((typename V::raw)_mm_unpackhi_pd(p0, p1))};
        else {
            const auto [a2, a3] = at.two(2);
            __m256d p02 = _mm256_set_m128d(pair(a2), p0), p13 = _mm256_set_m128d(pair(a3), p1);
            return {V((typename V::raw)_mm256_unpacklo_pd(p02, p13)),
                    V((typename V::raw)_mm256_unpackhi_pd(p02, p13))};
        }
    } else {
        // Two 8-byte pairs fill 128 bits (a0 a1 b0 b1); a shuffle of two such gives the firsts and the seconds.
        auto two = [&](int i) ORVANE_LAMBDA {
            const auto [p, q] = at.two(i);
            return (__m128)_mm_loadh_pd(_mm_load_sd((const double*)p), (const double*)q);
        };
        if constexpr (W == 2) {
            __m128 p = two(0);
            return {V((typename V::raw)_mm_shuffle_ps(p, p, 0x88)), V((typename V::raw)_mm_shuffle_ps(p, p, 0xDD))};
        } else if constexpr (W == 8) {
            // One after the other and both before what follows: few registers are needed at a time.
            const __m128 p0 = two(0), q0 = two(2);
            const __m256 p = _mm256_set_m128(two(4), p0), q = _mm256_set_m128(two(6), q0);
            return {finished(V((typename V::raw)_mm256_shuffle_ps(p, q, 0x88))),
                    finished(V((typename V::raw)_mm256_shuffle_ps(p, q, 0xDD)))};
        } else {
            __m128 p = two(0), q = two(2);
            return {V((typename V::raw)_mm_shuffle_ps(p, q, 0x88)), V((typename V::raw)_mm_shuffle_ps(p, q, 0xDD))};
        }
    }
}
} // namespace detail
template <class T, class I, int W>
ORVANE_INLINE lane_pair<T, W> lookup_pair_bytes(const void* base, lanes<I, W> offset) {
    return detail::assemble_pair<T, W>(detail::addresses<1, I, W>(base, offset));
}
template <class T, class I, int W> ORVANE_INLINE lane_pair<T, W> lookup_pair(const void* base, lanes<I, W> index) {
    if constexpr (sizeof(T) == 8) return lookup_pair_bytes<T>(base, index << 4); // an address scales by 8
    else return detail::assemble_pair<T, W>(detail::addresses<8, I, W>(base, index));
}

// Four floats that stand side by side: one load per lane gives all four; a transposition sorts them.
template <int W> struct lane_four { lanes<float, W> first, second, third, fourth; };
namespace detail {
template <int W, class At> ORVANE_INLINE lane_four<W> assemble_four(At at) {
    using raw = typename lanes<float, W>::raw;
    if constexpr (W == 1) {
        auto word = [&](int i) ORVANE_LAMBDA { return lanes<float, W>(load<float>(at(0) + 4 * i)); };
        return {word(0), word(1), word(2), word(3)};
    } else {
        auto row = [&](int i) ORVANE_LAMBDA { return _mm_loadu_ps((const float*)at(i)); };
        // The rows of one half of a register each, two and two interleaved, and these once more.
        auto four = [](auto r0, auto r1, auto r2, auto r3, auto low, auto high) ORVANE_LAMBDA {
            const auto l02 = low(r0, r2), l13 = low(r1, r3), h02 = high(r0, r2), h13 = high(r1, r3);
            return lane_four<W>{(raw)low(l02, l13), (raw)high(l02, l13), (raw)low(h02, h13), (raw)high(h02, h13)};
        };
        if constexpr (W == 8) {
            auto two = [&](int i) ORVANE_LAMBDA { return _mm256_set_m128(row(i + 4), row(i)); };
            return four(
                two(0), two(1), two(2), two(3), [](auto a, auto b) ORVANE_LAMBDA { return _mm256_unpacklo_ps(a, b); },
                [](auto a, auto b) ORVANE_LAMBDA { return _mm256_unpackhi_ps(a, b); });
        } else
            return four(
                row(0), row(1), row(W == 2 ? 0 : 2), row(W == 2 ? 1 : 3),
                [](auto a, auto b) ORVANE_LAMBDA { return _mm_unpacklo_ps(a, b); },
                [](auto a, auto b) ORVANE_LAMBDA { return _mm_unpackhi_ps(a, b); });
    }
}
} // namespace detail

// A row of a table for each lane, found by its offset in units of `Scale` bytes: the addresses once, then entries or
// pairs of them, whose numbers count entries of T.
template <int W, int Scale = 1> struct row_addresses {
    static constexpr int rows = W == 3 ? 4 : W; // the spare lane has one too
    const char* row[rows];

    template <class I> ORVANE_INLINE row_addresses(const void* base, lanes<I, W> offset) {
        const detail::addresses<Scale, I, W> at(base, offset);
        if constexpr (W == 1) row[0] = at(0);
        else
            each<rows / 2>([&](auto i) ORVANE_LAMBDA {
                const auto [p, q] = at.two(2 * i);
                row[2 * i] = p, row[2 * i + 1] = q;
            });
    }
    template <class T> ORVANE_INLINE lanes<T, W> entry(int number) const {
        return detail::assemble<T, W>(column{row, (int)sizeof(T) * number});
    }
    template <class T> ORVANE_INLINE lane_pair<T, W> pair(int number) const {
        return detail::assemble_pair<T, W>(column{row, (int)sizeof(T) * number});
    }
    // The same by name, the rows being structs.
    template <class T, class Row> ORVANE_INLINE lanes<T, W> entry(T Row::*field) const {
        return detail::assemble<T, W>(column{row, offset_of(field)});
    }
    template <class T, class Row> ORVANE_INLINE lane_pair<T, W> pair(T Row::*first) const {
        return detail::assemble_pair<T, W>(column{row, offset_of(first)});
    }
    template <class Row> ORVANE_INLINE lane_four<W> four(float Row::*first) const {
        return detail::assemble_four<W>(column{row, offset_of(first)});
    }

private:
    struct column {
        const char* const* row;
        int offset;
        ORVANE_INLINE const char* operator()(int i) const { return row[i] + offset; }
        ORVANE_INLINE detail::two_addresses two(int i) const { return {(*this)(i), (*this)(i + 1)}; }
    };
    template <class T, class Row> ORVANE_INLINE int offset_of(T Row::*field) const {
        return int((const char*)&(((const Row*)row[0])->*field) - row[0]);
    }
};

} // namespace orvane
