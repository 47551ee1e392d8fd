// Kernels for which every width must give what width 1 gives; all have the same parameters.
#pragma OPENCL EXTENSION cl_khr_fp64 : enable
#define KERNEL(NAME)                                                                                                  \
    kernel void NAME(global const float* a, global const float* b, global const int* k, global const int* m,          \
                     global const double* d, global float* x, global int* n, global double* y, int count)
#define ID const size_t i = get_global_id(0)

KERNEL(one_call) { ID; x[i] = exp(a[i]); }
KERNEL(early_return) { ID; if (i >= count) return; float v = a[i]; if (v > 0.5f) v = exp(v); x[i] = v; }
KERNEL(branches) {
    ID;
    float v = a[i];
    if (v < 0) v = tanh(v);
    else if (v < 1) { v = log(v + 1); n[i] = k[i] / m[i]; }
    else v = pow(v, b[i]);
    x[i] = v;
}
KERNEL(mixed_types) { ID; y[i] = exp(d[i]) + sin(a[i]); x[i] = (float)pow(fabs(d[i]), 1.5) + cbrt(b[i]); }
KERNEL(wide_double) { ID; y[i] = pow(fabs(d[i]) + 0.1, d[i]) + atan2(d[i], 2.0) + ldexp(d[i], k[i] & 7) + fmod(d[i], 0.3); }
float helper(float v) { return v < 0 ? sin(v) : cosh(v) + log1p(v); }
__attribute__((noinline)) float other_helper(float v, int rounds) {
    for (int r = 0; r < rounds; r++) v = helper(v) * 0.5f;
    return v;
}
KERNEL(helpers) { ID; x[i] = helper(a[i]) + helper(b[i]); }
KERNEL(helper_with_loop) { ID; x[i] = other_helper(a[i], count & 3); }

// Two results
KERNEL(sincos_both) { ID; float c; float s = sincos(a[i] * 10, &c); x[i] = s * 3 + c; double e; y[i] = sincos(d[i], &e) - e; }
KERNEL(modf_both) { ID; float w; x[i] = modf(a[i] * 5, &w) + 8 * w; double v; y[i] = modf(d[i] * 7, &v) - v; }
KERNEL(frexp_both) { ID; int e; x[i] = frexp(a[i], &e); n[i] = e; int g; y[i] = frexp(d[i], &g) + g; }
KERNEL(fract_both) { ID; float w; x[i] = fract(a[i] * 5, &w) + 8 * w; double v; y[i] = fract(d[i] * 7, &v) - v; }
KERNEL(remquo_both) { ID; int q; x[i] = remquo(a[i] * 9, b[i], &q); n[i] = q; int r; y[i] = remquo(d[i], 0.7, &r) + r; }
KERNEL(lgamma_both) { ID; int s; x[i] = lgamma_r(a[i] * 3, &s); n[i] = s; int t; y[i] = lgamma_r(d[i], &t) * t; }
KERNEL(second_only) { ID; int e; frexp(a[i], &e); n[i] = e; }
KERNEL(through_memory) { ID; x[i] = sincos(a[i], x + i + 1 - 1) * 2; }

// Integer division
KERNEL(divide_variables) { ID; n[i] = k[i] / m[i] + k[i] % m[i]; }
KERNEL(divide_unsigned) { ID; n[i] = (uint)k[i] / (uint)m[i] ^ (uint)k[i] % ((uint)m[i] + 1); }
KERNEL(divide_constants) { ID; n[i] = k[i] / 7 + k[i] % 10 + (uint)k[i] / 3u + (k[i] + i) % 1000; }
KERNEL(divide_scalar) { ID; n[i] = k[i] / count + k[i] % (count + 1); }
KERNEL(divide_short) { ID; n[i] = (short)k[i] / (short)m[i] + (char)k[i] % (char)m[i] + (ushort)k[i] / (ushort)m[i]; }
KERNEL(divide_long) { ID; y[i] = ((long)k[i] << 20) / (long)m[i] + ((ulong)k[i] << 20) % (ulong)(long)m[i]; }
KERNEL(divide_under_if) { ID; if (m[i] != 0) n[i] = k[i] / m[i]; else n[i] = 5; }

// Inner loops
KERNEL(horner) {
    ID;
    float v = 0;
    for (int j = count; j >= 0; j--) v = fma(v, a[i], b[j]);
    x[i] = v;
}
KERNEL(n_body) {
    ID;
    float u = 0, v = 0;
    for (int j = 0; j < count; j++) {
        const float dx = a[j] - a[i], dy = b[j] - b[i], w = rsqrt(dx * dx + dy * dy + 0.01f);
        u += dx * w * w * w;
        v += dy * exp(-w);
    }
    x[i] = u;
    y[i] = v;
}
KERNEL(matrix_product) {
    ID;
    const int row = i / 4, column = i % 4;
    float sum = 0;
    for (int j = 0; j < 4 + (count & 1); j++) sum += a[row * 4 + j] * b[j * 4 + column];
    x[i] = sum;
}
KERNEL(along_an_axis) {
    ID;
    float largest = -INFINITY;
    for (int j = 0; j < count; j++) largest = fmax(largest, a[(i + j) & 63]);
    float sum = 0;
    for (int j = 0; j < count; j++) sum += exp(a[(i + j) & 63] - largest);
    for (int j = 0; j < 3; j++) n[i] += j * count;
    x[i] = log(sum) + largest;
}
KERNEL(mandelbrot) {
    ID;
    float u = 0, v = 0;
    int r = 0;
    while (r < 100 && u * u + v * v < 4) {
        const float t = u * u - v * v + a[i] * 0.7f - 0.5f;
        v = 2 * u * v + b[i] * 0.5f;
        u = t;
        r++;
    }
    n[i] = r;
    x[i] = u;
}
KERNEL(newton) { // w exp(w) = |a|
    ID;
    const float t = fabs(a[i]);
    float w = 0.5f;
    for (int r = 0; r < 50; r++) {
        const float e = exp(w), step = (w * e - t) / (e * (w + 1));
        w -= step;
        if (fabs(step) < 1e-6f * fabs(w)) break;
    }
    x[i] = w;
}
KERNEL(trips_by_lane) { ID; float v = a[i]; for (int j = 0; j < (k[i] & 15); j++) v = sin(v) + j; x[i] = v; }
KERNEL(loop_under_if) {
    ID;
    float v = b[i];
    if (a[i] > 0) for (int j = 0; j < count; j++) v = cos(v) + a[i];
    else v = tan(v);
    x[i] = v;
}
KERNEL(loop_after_return) {
    ID;
    if (i % 3 == 1) { x[i] = -1; return; }
    float v = a[i];
    for (int j = 0; j < 5; j++) { if (v > 2) continue; v += exp(-v) * j; if (v > 3.5f) { n[i] = j; break; } }
    x[i] = v;
}
KERNEL(nested_loops) {
    ID;
    float sum = 0;
    for (int j = 0; j < 4; j++) {
        float inner = a[i];
        for (int q = 0; q < (k[(i + j) & 63] & 7); q++) {
            inner = inner * 0.5f + b[q];
            if (inner > 1.5f) break;
            for (int z = 0; z < 2 + (count & 1); z++) inner += z * 0.125f;
        }
        sum += inner * j;
        if (sum > 40) return;
        x[i] = sum;
    }
    y[i] = sum;
}
KERNEL(two_exits) {
    ID;
    int j = 0;
    float v = a[i];
    for (;; j++) {
        if (j > (k[i] & 31)) { x[i] = v; break; }
        v = v * 1.25f + 0.1f;
        if (v > 4) { x[i] = sqrt(v); n[i] = 7; return; }
    }
    n[i] = j;
}
KERNEL(swapped_values) {
    ID;
    float u = a[i], v = b[i];
    for (int j = 0; j < (k[i] & 7); j++) { const float t = u; u = v; v = t + 1; }
    x[i] = u;
    y[i] = v;
}
KERNEL(private_array) {
    ID;
    float bins[8];
    for (int j = 0; j < 8; j++) bins[j] = a[(i + j) & 63];
    for (int j = 0; j < 6; j++) bins[k[(i * 3 + j) & 63] & 7] += exp(b[(i + j) & 63]);
    float sum = 0;
    for (int j = 0; j < 8; j++) sum += bins[j] * j;
    x[i] = sum + bins[m[i] & 7];
}
KERNEL(private_array_no_loop) { ID; float p[4]; p[0] = a[i]; p[1] = 1; p[2] = b[i]; p[3] = 2; p[k[i] & 3] = exp(a[i]); x[i] = p[m[i] & 3]; }
KERNEL(divide_in_loop) { ID; int v = k[i]; int r = 0; while (v > 0 && r < 20) { v /= (m[i] & 7) + 2; r++; } n[i] = r; }

// Vectors in a work-item
KERNEL(float4_lanes) {
    ID;
    const float4 v = (float4)(a[i], b[i], a[i] + b[i], 1), w = exp(v) * sin(v.wzyx);
    float4 c;
    const float4 s = sincos(w, &c);
    x[i] = dot(s, c) + length(v.xyz);
}
KERNEL(float2_in_loop) { ID; float2 v = (float2)(a[i], b[i]); for (int j = 0; j < (k[i] & 3); j++) v = cos(v.yx) + v; x[i] = v.x - v.y; }
KERNEL(float8_lanes) { ID; float8 v = a[i]; v.s3 = b[i]; v = exp(v) + log(fabs(v) + 1); x[i] = v.s0 + v.s3; }
KERNEL(conversions) { ID; n[i] = convert_int_sat_rte(a[i] * 1e9f) ^ convert_uchar_sat(b[i] * 100) ^ (int)convert_long_rtp(d[i]); x[i] = convert_float_rtz(k[i]); }
KERNEL(switch_on_value) { ID; switch (k[i] & 3) { case 0: x[i] = exp(a[i]); break; case 1: x[i] = sin(a[i]); break; case 2: x[i] = 2; break; default: x[i] = a[i]; } }
