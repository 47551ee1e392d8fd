// Tables of the roots: reciprocals and roots of points in the binade, by the top bits of the argument.
#include "table.h"

namespace orvane::tables {

namespace {

// The centre of interval i of 32.
real centre(int i) { return real(1) + (real(2) * i + 1) / 64; }
real grid(int i, int n) { return real(1) + real(i) / n; }

template <class T> constexpr int significant_bits = sizeof(T) == 8 ? 53 : 24;
void write(writer& w, double, const real& x) { w.f64(rounded_f64(x)); }
void write(writer& w, float, const real& x) { w.f32(rounded_f32(x)); }

template <class T> void neg_rcp(writer& w) {
    for (int i = 0; i < 32; i++)
        write(w, T(), real(-1) / centre(i)), w.end_row();
}

// Entry 32 rem + i as (hi, lo) of value(2^rem, i): hi by `to_hi`, lo rounded.
template <class T> auto pairs(real (*to_hi)(const real&, int), real (*value)(const real&, int)) {
    return [=](writer& w) {
        for (int rem = 0; rem < 3; rem++)
            for (int i = 0; i < 32; i++) {
                const real t = value(real(1 << rem), i), hi = to_hi(t, significant_bits<T>);
                write(w, T(), hi), write(w, T(), t - hi), w.end_row();
            }
    };
}
real root(const real& scale, int i) { return cbrt(scale * centre(i)); }
real reciprocal_root(const real& scale, int i) { return real(1) / root(scale, i); }

// 1 / sqrt((1 + i/n) 2^o), to a multiple of 2^unit; the last row may have an entry more.
auto rsqrt_seed(int n, int unit, int last) {
    return [=](writer& w) {
        for (int o = 0; o < 2; o++)
            for (int i = 0; i < n + (o ? last : 0); i++)
                w.f64(rounded_f64(to_multiple(real(1) / sqrt(grid(i, n) * (1 << o)), unit))), w.end_row();
    };
}

} // namespace

std::vector<table> divroot_tables() {
    return {
        {"divroot/tables/cbrt_neg_rcp.inc", neg_rcp<double>},
        {"divroot/tables/cbrtf_neg_rcp.inc", neg_rcp<float>},
        {"divroot/tables/cbrt_pairs.inc", pairs<double>(cut_to_significant, root)},
        {"divroot/tables/rcbrt_pairs.inc", pairs<double>(cut_to_significant, reciprocal_root)},
        {"divroot/tables/cbrtf_pairs.inc", pairs<float>(cut_to_significant, root)},
        {"divroot/tables/rcbrtf_pairs.inc", pairs<float>(cut_to_significant, reciprocal_root)},
        {"divroot/tables/cbrtf_rcp_pairs.inc",
         pairs<float>(to_significant, [](const real& scale, int i) { return cbrt(scale / (grid(i, 32) / 2)); })},
        {"divroot/tables/rsqrt_seed.inc", rsqrt_seed(32, -13, 1)},
        {"divroot/tables/rsqrt_seed_256.inc", rsqrt_seed(256, -11, 0)},
        {"divroot/tables/cbrt_seed.inc",
         [](writer& w) { // (1 + i/32)^(-1/3), cut to a multiple of 2^-8
             for (int i = 0; i < 32; i++)
                 w.f64(rounded_f64(cut_to_multiple(real(1) / cbrt(grid(i, 32)), -8))), w.end_row();
         }},
        {"divroot/tables/rcbrt_seed.inc",
         [](writer& w) { // 1 / cbrt(2^rem (1 + i/32)) to a multiple of 2^-8
             for (int j = 0; j <= 96; j++) {
                 const int rem = j < 96 ? j / 32 : 2, i = j - 32 * rem;
                 w.f64(rounded_f64(to_multiple(real(1) / cbrt(grid(i, 32) * (1 << rem)), -8))), w.end_row();
             }
         }},
    };
}

} // namespace orvane::tables
