// Distances on the Earth's sphere between all pairs of places, given as latitude and longitude in degrees.
//
//     orvane-cl haversine.cl -n 312,312 places.npy out:km.npy
kernel void haversine(global const float2* places, global float* km) {
    const size_t i = get_global_id(0), j = get_global_id(1);
    const float2 a = radians(places[i]), b = radians(places[j]);
    const float up = sin(0.5f * (b.x - a.x)), across = sin(0.5f * (b.y - a.y));
    const float h = up * up + cos(a.x) * cos(b.x) * across * across;
    km[j * get_global_size(0) + i] = 2 * 6371.0f * asin(min(sqrt(h), 1.0f));
}
