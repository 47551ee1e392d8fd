// The logarithm of a likelihood, summed: each work-group adds up its numbers in local memory.
//
//     orvane-cl reduction.cl -n 65536 -l 256 x.npy out:sums.npy:256 local:256
kernel void reduction(global const float* x, global float* sums, local float* part) {
    const size_t lane = get_local_id(0);
    const float v = x[get_global_id(0)];
    part[lane] = -log1p(v * v) - 1.1447299f; // of Cauchy's distribution
    for (size_t half_way = get_local_size(0) / 2; half_way; half_way /= 2) {
        barrier(CLK_LOCAL_MEM_FENCE);
        if (lane < half_way) part[lane] += part[lane + half_way];
    }
    if (!lane) sums[get_group_id(0)] = part[0];
}
