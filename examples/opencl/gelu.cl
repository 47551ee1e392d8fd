// The activation of transformers: x times the share of a normal distribution below x, in its form with tanh.
//
//     orvane-cl gelu.cl -n 1048576 x.npy out:y.npy
kernel void gelu(global const float* x, global float* y) {
    const size_t i = get_global_id(0);
    const float v = x[i];
    y[i] = 0.5f * v * (1.0f + tanh(0.79788456f * (v + 0.044715f * v * v * v)));
}
