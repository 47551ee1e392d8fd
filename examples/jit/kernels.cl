// Kernels that people run, one-dimensional.
#pragma OPENCL EXTENSION cl_khr_fp64 : enable
#define BLACK_SCHOLES(NAME, T, SQRT_HALF)                                                                             \
    kernel void NAME(global const T* price, global const T* strike, global const T* years, global T* call,            \
                     global T* put, T rate, T volatility) {                                                           \
        const size_t i = get_global_id(0);                                                                            \
        const T s = price[i], k = strike[i], t = years[i], root = sqrt(t);                                            \
        const T d1 = (log(s / k) + (rate + (T)0.5 * volatility * volatility) * t) / (volatility * root);              \
        const T d2 = d1 - volatility * root;                                                                          \
        const T n1 = (T)0.5 * erfc(-d1 * SQRT_HALF), n2 = (T)0.5 * erfc(-d2 * SQRT_HALF);                             \
        const T discounted = k * exp(-rate * t);                                                                      \
        call[i] = s * n1 - discounted * n2;                                                                           \
        put[i] = discounted * ((T)1 - n2) - s * ((T)1 - n1);                                                          \
    }
BLACK_SCHOLES(black_scholes, float, 0.70710678118654752f)
BLACK_SCHOLES(black_scholes_double, double, 0.70710678118654752)

uint scrambled(uint a) { // PCG output permutation
    a = ((a >> ((a >> 28) + 4u)) ^ a) * 277803737u;
    return (a >> 22) ^ a;
}
kernel void box_muller(global float* first, global float* second, uint seed) {
    const size_t i = get_global_id(0);
    const uint a = scrambled((uint)i * 747796405u + seed), b = scrambled(a * 747796405u + 2891336453u);
    const float radius = sqrt(-2.0f * log(((a >> 8) + 1u) * 0x1p-24f));
    float c, s = sincos(6.2831853f * ((b >> 8) * 0x1p-24f), &c);
    first[i] = radius * c;
    second[i] = radius * s;
}

kernel void haversine(global const float* lat1, global const float* lon1, global const float* lat2,
                      global const float* lon2, global float* km) {
    const size_t i = get_global_id(0);
    const float a = sin((lat2[i] - lat1[i]) * 0.5f), b = sin((lon2[i] - lon1[i]) * 0.5f);
    km[i] = 2.0f * 6371.0f * asin(sqrt(a * a + cos(lat1[i]) * cos(lat2[i]) * b * b));
}

kernel void gelu(global const float* x, global float* y) {
    const size_t i = get_global_id(0);
    const float v = x[i];
    y[i] = 0.5f * v * (1.0f + tanh(0.79788456f * (v + 0.044715f * v * v * v)));
}

kernel void power(global const float* x, global float* y, float g) {
    const size_t i = get_global_id(0);
    const float v = x[i];
    y[i] = v <= 0.0031308f ? 12.92f * v : 1.055f * pow(v, g) - 0.055f;
}

kernel void divide(global const int* x, global const int* by, global int* y) {
    const size_t i = get_global_id(0);
    y[i] = x[i] / by[i] + x[i] % by[i];
}

kernel void n_body(global const float4* bodies, global float4* acceleration, int n) {
    const size_t i = get_global_id(0);
    const float4 me = bodies[i];
    float x = 0, y = 0, z = 0;
    for (int j = 0; j < n; j++) {
        const float4 other = bodies[j];
        const float dx = other.x - me.x, dy = other.y - me.y, dz = other.z - me.z;
        const float inverse = rsqrt(dx * dx + dy * dy + dz * dz + 1e-3f);
        const float w = other.w * inverse * inverse * inverse;
        x += w * dx;
        y += w * dy;
        z += w * dz;
    }
    acceleration[i] = (float4)(x, y, z, 0);
}

kernel void mandelbrot(global int* rounds, int columns, int most) {
    const size_t i = get_global_id(0);
    const float cx = (int)(i % columns) * (3.0f / columns) - 2.25f, cy = (int)(i / columns) * (3.0f / columns) - 1.5f;
    float x = 0, y = 0;
    int n = 0;
    while (n < most && x * x + y * y < 4.0f) {
        const float t = x * x - y * y + cx;
        y = 2.0f * x * y + cy;
        x = t;
        n++;
    }
    rounds[i] = n;
}

kernel void power_double(global const double* x, global double* y, double g) {
    const size_t i = get_global_id(0);
    y[i] = pow(x[i], g);
}
