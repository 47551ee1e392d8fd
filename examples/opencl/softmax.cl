// Rows of scores become rows of shares that add up to 1. A work-group takes a row: its largest score and its sum go
// through local memory.
//
//     orvane-cl softmax.cl -n 65536 -l 64 scores.npy out:shares.npy:1024000 local:64 1000
kernel void softmax(global const float* scores, global float* shares, local float* part, int columns) {
    const size_t row = get_group_id(0), lane = get_local_id(0), lanes = get_local_size(0);
    scores += row * columns;
    shares += row * columns;

    float largest = -INFINITY;
    for (int k = lane; k < columns; k += lanes)
        largest = fmax(largest, scores[k]);
    part[lane] = largest;
    for (size_t half_way = lanes / 2; half_way; half_way /= 2) {
        barrier(CLK_LOCAL_MEM_FENCE);
        if (lane < half_way) part[lane] = fmax(part[lane], part[lane + half_way]);
    }
    barrier(CLK_LOCAL_MEM_FENCE);
    largest = part[0];
    barrier(CLK_LOCAL_MEM_FENCE);

    float sum = 0;
    for (int k = lane; k < columns; k += lanes) {
        const float e = exp(scores[k] - largest);
        shares[k] = e;
        sum += e;
    }
    part[lane] = sum;
    for (size_t half_way = lanes / 2; half_way; half_way /= 2) {
        barrier(CLK_LOCAL_MEM_FENCE);
        if (lane < half_way) part[lane] += part[lane + half_way];
    }
    barrier(CLK_LOCAL_MEM_FENCE);
    for (int k = lane; k < columns; k += lanes)
        shares[k] /= part[0];
}
