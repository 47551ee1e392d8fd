/* Calls an export that C can declare, on the ordinary and on the special path. */
#include <math.h>
#include <orvane/orvane.h>
#include <stdio.h>

int wide_call_is_right(void);

int main(void) {
    const orvane_float8 x = {0, 1, -1, 10, 200, -200, 88, NAN};
    const float expected[8] = {1, 2.7182817f, 0.36787945f, 22026.465f, INFINITY, 0, 1.6516363e38f, NAN};
    const orvane_float8 y = __orvane_l9_expf8(x);
    for (int i = 0; i < 8; i++)
        if (isnan(expected[i]) ? !isnan(y[i]) : !(y[i] == expected[i] || fabsf(y[i] / expected[i] - 1) < 1.2e-7f)) {
            printf("expf8(%g) gives %.9g instead of %.9g\n", x[i], y[i], expected[i]);
            return 1;
        }
    return wide_call_is_right() ? 0 : 1;
}
