// What is no export of the library, for comparison with the host.
#pragma OPENCL EXTENSION cl_khr_fp64 : enable
#define INTEGERS(T, U, S)                                                                                             \
    kernel void integers_##T(global const T* x, global const T* y, global const T* z, global T* out) {                \
        const size_t i = get_global_id(0);                                                                            \
        global T* o = out + 16 * i;                                                                                   \
        const T a = x[i], b = y[i], d = z[i];                                                                         \
        o[0] = add_sat(a, b), o[1] = sub_sat(a, b), o[2] = hadd(a, b), o[3] = rhadd(a, b);                            \
        o[4] = mul_hi(a, b), o[5] = mad_sat(a, b, d), o[6] = rotate(a, b), o[7] = clz(a);                             \
        o[8] = popcount(a), o[9] = abs(a), o[10] = abs_diff(a, b), o[11] = clamp(a, min(b, d), max(b, d));            \
        o[12] = ctz(a), o[13] = mad_hi(a, b, d), o[14] = bitselect(a, b, d);                                          \
        o[15] = select(a, b, (S)(d & 1));                                                                             \
    }                                                                                                                 \
    kernel void vectors_##T(global const T* x, global const T* y, global const T* z, global T* out) {                 \
        const size_t i = get_global_id(0);                                                                            \
        global T* o = out + 16 * i;                                                                                   \
        const T##2 a = x[i], b = y[i], d = z[i];                                                                      \
        o[0] = add_sat(a, b).y, o[1] = sub_sat(a, b).y, o[2] = hadd(a, b).y, o[3] = rhadd(a, b).y;                    \
        o[4] = mul_hi(a, b).y, o[5] = mad_sat(a, b, d).y, o[6] = rotate(a, b).y, o[7] = clz(a).y;                     \
        o[8] = popcount(a).y, o[9] = abs(a).y, o[10] = abs_diff(a, b).y, o[11] = clamp(a, min(b, d), max(b, d)).y;    \
        o[12] = ctz(a).y, o[13] = mad_hi(a, b, d).y, o[14] = bitselect(a, b, d).y;                                    \
        o[15] = select(a, b, __builtin_astype((d & (T)1) != (T)0, S##2)).y;                              \
    }
INTEGERS(char, uchar, char)
INTEGERS(uchar, uchar, char)
INTEGERS(short, ushort, short)
INTEGERS(ushort, ushort, short)
INTEGERS(int, uint, int)
INTEGERS(uint, uint, int)
INTEGERS(long, ulong, long)
INTEGERS(ulong, ulong, long)

kernel void floats(global const float* x, global const float* y, global const float* z, global float* out) {
    const size_t i = get_global_id(0);
    global float* o = out + 32 * i;
    const float a = x[i], b = y[i], d = z[i];
    o[0] = clamp(a, fmin(b, d), fmax(b, d)), o[1] = mix(a, b, d), o[2] = step(a, b), o[3] = smoothstep(0.0f, 1.0f, a);
    o[4] = sign(a), o[5] = degrees(a), o[6] = radians(a), o[7] = dot((float4)(a, b, d, 1), (float4)(d, a, b, 2));
    o[8] = length((float3)(a, b, d) * 1e30f), o[9] = length((float3)(a, b, d) * 1e-30f), o[10] = distance(a, b);
    vstore3(cross((float3)(a, b, d), (float3)(1, 2, 3)), 0, o + 11);
    vstore4(normalize((float4)(a, b, d, 1)), 0, o + 14);
    o[18] = isgreater(a, b), o[19] = isnormal(a) + 2 * isfinite(b) + 4 * signbit(d) + 8 * isunordered(a, NAN);
    o[20] = any((int4)(0, (int)as_int(a), 0, 0)), o[21] = all((int2)(as_int(a), as_int(b)));
    const float4 mixed = shuffle2((float4)(a, b, d, 4), (float2)(5, 6).xyxy, (uint4)(6, 1, 5, 3));
    vstore4(mixed, 0, o + 22);
    o[26] = convert_char_sat_rte(a * 100), o[27] = convert_ushort(convert_int(b * 10) & 0xffff), o[28] = mad(a, b, d);
    ushort h;
    vstore_half_rtz(a, 0, (private half*)&h), o[29] = vload_half(0, (private half*)&h);
    vstore_half_rtp(a, 0, (private half*)&h), o[30] = vload_half(0, (private half*)&h);
    vstore_half(a, 0, (private half*)&h), o[31] = vload_half(0, (private half*)&h);
}
