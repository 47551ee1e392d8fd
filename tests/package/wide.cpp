// Calls exports that C cannot declare, by the header's symbols: their results fill two registers.
#include <orvane/call.hpp>
#include <orvane/orvane.h>

extern "C" bool wide_calls_are_right() {
    orvane::vec<float, 16> zeros = {};
    const auto ones = orvane::call<float>((const void*)&__orvane_l9_expf16, zeros);
    const auto still_ones = orvane::call<float>((const void*)&__orvane_l9_ceilf16, ones);
    for (int i = 0; i < 16; i++)
        if (still_ones[i] != 1) return false;
    return true;
}
