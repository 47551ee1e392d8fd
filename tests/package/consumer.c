#include <orvane/orvane.h>
#include <stdbool.h>
#include <stdio.h>

bool wide_calls_are_right(void);

int main(void) {
    const orvane_float8 x = {0, 1, 2, 3, -1, -2, 0.5f, 88};
    const orvane_float8 y = __orvane_l9_expf8(x);
    struct orvane_args_fma8 numbers = {{2, 2, 2, 2, 2, 2, 2, 2}, {3, 3, 3, 3, 3, 3, 3, 3}, {1, 1, 1, 1, 1, 1, 1, 1}};
    double seven[8];
    if (__orvane_l9_fma8(seven, numbers) != (void*)seven) return 1;
    for (int i = 0; i < 8; i++)
        if (seven[i] != 7) return 1;
    printf("%.9g %.9g\n", y[0], y[1]);
    return !(y[0] == 1 && y[1] == 0x1.5bf0a8p+1f && wide_calls_are_right());
}
