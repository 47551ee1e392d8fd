// Loops in C over calls of exports, for the plugins: every clang and opt must make them wide.
float __orvane_l9_expf1(float) __attribute__((const));
double __orvane_l9_pow1(double, double) __attribute__((const));
void of_exp(float* restrict y, const float* restrict x, int n) {
    for (int i = 0; i < n; i++)
        y[i] = __orvane_l9_expf1(x[i]);
}
void of_pow(double* restrict y, const double* restrict x, int n) {
    for (int i = 0; i < n; i++)
        y[i] = __orvane_l9_pow1(x[i], 1.5);
}
void of_division(int* restrict y, const int* restrict x, const int* restrict by, int n) {
    for (int i = 0; i < n; i++)
        y[i] = x[i] / by[i] + 3;
}
int one_division(int x, int y) { return x / y; }
float no_loop(float x) { return __orvane_l9_expf1(x); }
