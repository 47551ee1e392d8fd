// Prices of European options, by Black and Scholes: a call and a put for each asset, strike and time to run.
//
//     orvane-cl black_scholes.cl -n 65536 price.npy strike.npy years.npy out:call.npy out:put.npy 0.02 0.3
//     orvane-cl black_scholes.cl -D REAL=double ...
#ifndef REAL
#define REAL float
#endif
typedef REAL real;

real share_below(real d) { return (real)0.5 * erfc(-d * (real)M_SQRT1_2); } // of the normal distribution

kernel void black_scholes(global const real* price, global const real* strike, global const real* years,
                          global real* call, global real* put, real rate, real volatility) {
    const size_t i = get_global_id(0);
    const real spread = volatility * sqrt(years[i]);
    const real d1 = (log(price[i] / strike[i]) + (rate + (real)0.5 * volatility * volatility) * years[i]) / spread;
    const real d2 = d1 - spread;
    const real discounted = strike[i] * exp(-rate * years[i]);
    call[i] = price[i] * share_below(d1) - discounted * share_below(d2);
    put[i] = discounted * share_below(-d2) - price[i] * share_below(-d1);
}
