// The gamma function of a complex argument as a picture: the hue is the argument of the value, and the brightness rises and
// starts again each time that its magnitude doubles.
//
//     orvane-cl complex_gamma.cl -n 640,480 out:pixels.npy 5
float2 times(float2 a, float2 b) { return (float2)(a.x * b.x - a.y * b.y, a.x * b.y + a.y * b.x); }
float2 over(float2 a, float2 b) { return times(a, (float2)(b.x, -b.y)) / dot(b, b); }
float2 logarithm(float2 z) { return (float2)(log(hypot(z.x, z.y)), atan2(z.y, z.x)); }

// The logarithm of gamma right of 1/2, by Lanczos's sum with g = 5.
float2 log_gamma(float2 z) {
    const float c[] = {76.18009172947146f, -86.50532032941677f, 24.01409824083091f, -1.231739572450155f, 0.1208650973866179e-2f};
    float2 sum = (float2)(1, 0);
    for (int k = 0; k < 5; k++)
        sum += over((float2)(c[k], 0), z + (float2)(k, 0));
    const float2 t = z + (float2)(4.5f, 0);
    return times(z - (float2)(0.5f, 0), logarithm(t)) - t + logarithm(2.5066282746310005f * sum);
}

// The logarithm of sin(pi z), for any z: the larger exponential is taken out.
float2 log_sin_pi(float2 z) {
    const float size = M_PI_F * fabs(z.y), small = exp(-2 * size);
    const float2 rest = (float2)(0.5f * (1 + small) * sinpi(z.x), copysign(0.5f * (1 - small), z.y) * cospi(z.x));
    return logarithm(rest) + (float2)(size, 0);
}

kernel void complex_gamma(global uchar4* pixels, float half_width) {
    const size_t column = get_global_id(0), row = get_global_id(1), columns = get_global_size(0), rows = get_global_size(1);
    const float step = 2 * half_width / columns;
    const float2 z = step * (float2)((float)column + 0.5f - 0.5f * columns, 0.5f * rows - (float)row - 0.5f);
    const bool left = z.x < 0.5f; // reflected: gamma(z) gamma(1 - z) = pi / sin(pi z)
    float2 value = log_gamma(left ? (float2)(1, 0) - z : z);
    if (left) value = (float2)(1.1447298858494002f, 0) - log_sin_pi(z) - value;
    const float hue = value.y / (2 * M_PI_F), doublings = value.x * M_LOG2E_F;
    const float light = 0.6f + 0.4f * (doublings - floor(doublings));
    const float3 colour = 0.5f + 0.5f * (float3)(cospi(2 * hue), cospi(2 * hue - 2 / 3.0f), cospi(2 * hue + 2 / 3.0f));
    pixels[row * columns + column] = (uchar4)(convert_uchar3_sat_rte(255.0f * light * colour), 255);
}
