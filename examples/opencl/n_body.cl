// What bodies (x, y, z, mass) do to each other by gravity, softened where they meet: the acceleration of each.
//
//     orvane-cl n_body.cl -n 1024 bodies.npy out:acceleration.npy 1024
kernel void n_body(global const float4* bodies, global float4* acceleration, int n) {
    const size_t i = get_global_id(0);
    const float4 me = bodies[i];
    float x = 0, y = 0, z = 0;
    for (int j = 0; j < n; j++) {
        const float4 other = bodies[j];
        const float dx = other.x - me.x, dy = other.y - me.y, dz = other.z - me.z;
        const float inverse = rsqrt(dx * dx + dy * dy + dz * dz + 1e-3f);
        const float w = other.w * inverse * inverse * inverse;
        x += w * dx;
        y += w * dy;
        z += w * dz;
    }
    acceleration[i] = (float4)(x, y, z, 0);
}
