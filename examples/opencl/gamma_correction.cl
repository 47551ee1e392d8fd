// Light as a camera counts it becomes the levels of sRGB, colour by colour; the fourth byte of a pixel stays.
//
//     orvane-cl gamma_correction.cl -n 640,480 light.npy out:levels.npy
float level(float light) { return light <= 0.0031308f ? 12.92f * light : 1.055f * pow(light, 1 / 2.4f) - 0.055f; }

kernel void gamma_correction(global const uchar4* light, global uchar4* levels) {
    const size_t i = get_global_id(1) * get_global_size(0) + get_global_id(0);
    const float4 v = convert_float4(light[i]) / 255.0f;
    levels[i] = convert_uchar4_sat_rte(255.0f * (float4)(level(v.x), level(v.y), level(v.z), v.w));
}
