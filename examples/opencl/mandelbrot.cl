// The Mandelbrot set in smooth colours: the number of rounds gets a fraction from how far out the last point lies.
//
//     orvane-cl mandelbrot.cl -n 640,480 out:pixels.npy 256
kernel void mandelbrot(global uchar4* pixels, int most) {
    const size_t column = get_global_id(0), row = get_global_id(1), columns = get_global_size(0), rows = get_global_size(1);
    const float step = 2.6f / rows;
    const float cx = ((float)column - 0.5f * columns) * step - 0.7f, cy = (0.5f * rows - (float)row) * step;
    float x = 0, y = 0, square = 0;
    int n = 0;
    while (n < most && square < 256.0f) {
        const float t = x * x - y * y + cx;
        y = 2.0f * x * y + cy;
        x = t;
        square = x * x + y * y;
        n++;
    }
    const float count = n + 1 - log2(0.5f * log2(fmax(square, 4.0f)));
    const float turn = 0.35f * log(fmax(count, 1.0f));
    const float3 colour = 0.5f - 0.5f * (float3)(cospi(2 * turn + 0.1f), cospi(2 * turn + 0.3f), cospi(2 * turn + 0.6f));
    const uchar3 levels = convert_uchar3_sat_rte(255.0f * (n < most ? colour : (float3)(0)));
    pixels[row * columns + column] = (uchar4)(levels, 255);
}
