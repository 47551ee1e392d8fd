// Calls exports that C cannot declare, through the header-only caller: two result registers, and the memory form.
#include <cstdio>
#include <orvane/call.hpp>
#include <orvane/orvane.h>

extern "C" int wide_call_is_right() {
    orvane::vec<float, 16> x, a, b;
    for (int i = 0; i < 16; i++) x[i] = 0, a[i] = 2, b[i] = float(i);
    const auto ones = orvane::call<orvane::vec<float, 16>>(&__orvane_l9_expf16, x);
    const auto sums = orvane::call<orvane::vec<float, 16>>(&__orvane_l9_fmaf16, a, ones, b);
    for (int i = 0; i < 16; i++)
        if (sums[i] != float(2 + i)) {
            printf("fmaf16 of expf16(0) gives %g in lane %d instead of %d\n", sums[i], i, 2 + i);
            return 0;
        }
    return 1;
}
