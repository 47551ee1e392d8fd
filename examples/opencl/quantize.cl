// Weights as bytes: a scale for each block of them, conversion that rounds to nearest and stops at the ends.
//
//     orvane-cl quantize.cl -n 65536 weights.npy scales.npy out:bytes.npy 256
kernel void quantize(global const float* weights, constant float* scales, global char* bytes, int block) {
    const size_t i = get_global_id(0);
    bytes[i] = convert_char_sat_rte(weights[i] / scales[i / block]);
}
