#include <orvane/math.h>
#include <stdio.h>

__attribute__((noinline)) static void logs(float* restrict y, const float* restrict x, int n) {
    for (int i = 0; i < n; i++)
        y[i] = lgammaf(x[i]) + expf(x[i]);
}

int main(int argc, char** argv) {
    (void)argv;
    float x[16], y[16];
    for (int i = 0; i < 16; i++)
        x[i] = i + argc;
    logs(y, x, 16 * argc);
    printf("%.3f %.3f\n", y[0], y[15]); // e, and 15! under the logarithm plus e to the 16th
    return !(y[0] > 2.718f && y[0] < 2.719f);
}
