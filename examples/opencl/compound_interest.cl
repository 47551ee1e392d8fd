// What a deposit of 1 grows to at a rate of interest, over years.
//
//     orvane-cl compound_interest.cl -n 65536 rate.npy years.npy out:grown.npy
kernel void compound_interest(global const float* rate, global const float* years, global float* grown) {
    const size_t i = get_global_id(0);
    grown[i] = pow(1 + rate[i], years[i]);
}
