// For tests whose cases are the same for double and float: lanes as values of the type.
#pragma once

#include "support.h"

#include <bit>
#include <cmath>
#include <limits>

namespace orvane {

// The family's member of T's type.
template <class T> std::string member(const std::string& base) { return sizeof(T) == 4 ? base + "f" : base; }
template <class T> uint64_t word(T x) {
    if constexpr (sizeof(T) == 4) return std::bit_cast<uint32_t>(x);
    else return std::bit_cast<uint64_t>(x);
}
template <class T> T number(uint64_t w) {
    if constexpr (sizeof(T) == 4) return std::bit_cast<T>((uint32_t)w);
    else return std::bit_cast<T>(w);
}
template <class T> constexpr uint64_t infinity_word = sizeof(T) == 8 ? 0x7FF0000000000000 : 0x7F800000;
template <class T> constexpr uint64_t quiet_bit = sizeof(T) == 8 ? 0x0008000000000000 : 0x00400000;
template <class T> constexpr uint64_t sign_word = sizeof(T) == 8 ? 0x8000000000000000 : 0x80000000;

// One lane through width 1, with values instead of words.
template <class T, class... A> std::vector<uint64_t> words_of(const std::string& base, uint32_t mxcsr, A... a) {
    const kernel_row* row = find_row(library_rows(), member<T>(base), "default");
    const auto r = by_single_lanes({row, &library_under_test()}, {{word(T(a))}...}, mxcsr);
    std::vector<uint64_t> w;
    for (const auto& lane : r)
        w.push_back(lane[0]);
    return w;
}
inline constexpr uint32_t to_even = 0x1F80, down = 0x3F80, up = 0x5F80, to_zero = 0x7F80;
template <class T, class... A> T value(const std::string& base, A... a) {
    return number<T>(words_of<T>(base, to_even, a...)[0]);
}

#define EXPECT_SAME(a, b) EXPECT_EQ(word<TypeParam>(a), word<TypeParam>(b))

// The slow path of a family, called for one lane; `before` stands where it puts its result.
template <class T>
slow_result slow_path_of(const char* base, const std::vector<uint64_t>& lane, uint64_t before = 0) {
    auto r =
        call_slow_path(library_under_test(), *find_row(library_rows(), member<T>(base), "default"), lane, before);
    if (sizeof(T) == 4) r.result &= 0xFFFFFFFF;
    return r;
}

using floating_types = testing::Types<double, float>;

} // namespace orvane
