// A product of two square matrices, tile by tile through local memory.
//
//     orvane-cl matrix_product.cl -n 256,256 a.npy b.npy out:c.npy
#define TILE 16
kernel __attribute__((reqd_work_group_size(TILE, TILE, 1)))
void matrix_product(global const float* a, global const float* b, global float* c) {
    local float as[TILE][TILE], bs[TILE][TILE];
    const size_t n = get_global_size(0), column = get_global_id(0), row = get_global_id(1);
    const size_t x = get_local_id(0), y = get_local_id(1);
    float sum = 0;
    for (size_t tile = 0; tile < n; tile += TILE) {
        as[y][x] = a[row * n + tile + x];
        bs[y][x] = b[(tile + y) * n + column];
        barrier(CLK_LOCAL_MEM_FENCE);
        for (int k = 0; k < TILE; k++)
            sum += as[y][k] * bs[k][x];
        barrier(CLK_LOCAL_MEM_FENCE);
    }
    c[row * n + column] = sum;
}
