// Normally distributed numbers without a state: a counter goes through ten rounds of Philox 2x32, whose two words become
// two numbers by the transform of Box and Muller.
//
//     orvane-cl box_muller.cl -n 262144 out:normal.npy 2026
uint2 philox(uint2 counter, uint key) {
    for (int round = 0; round < 10; round++) {
        const uint low = counter.x * 0xD256D193u, high = mul_hi(counter.x, 0xD256D193u);
        counter = (uint2)(high ^ key ^ counter.y, low);
        key += 0x9E3779B9u;
    }
    return counter;
}

kernel void box_muller(global float2* normal, uint seed) {
    const size_t i = get_global_id(0);
    const uint2 words = philox((uint2)((uint)i, 0), seed);
    const float uniform = ((words.x >> 8) + 1) * 0x1p-24f; // in (0, 1]
    const float radius = sqrt(-2.0f * log(uniform));
    float c, s = sincos((words.y >> 8) * (0x1p-23f * M_PI_F), &c);
    normal[i] = (float2)(radius * c, radius * s);
}
