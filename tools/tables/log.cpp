// Tables of the logarithms: of the reciprocal, an integer c (or v in its steps) near K / m, in hi and lo parts.
#include "table.h"

namespace orvane::tables {

namespace {

// T0 = Vh - exponent * L1 and T1 = (V - Vh) - exponent * L2 for V rounded to a multiple of 2^unit: T0 + E * L1 is
// exact for every biased exponent E.
template <class T> void biased_pair(writer& w, const real& v, int unit, int bias, const real& l1, const real& l2) {
    const real vh = to_multiple(v, unit);
    const real t0 = vh - real(bias) * l1, t1 = (v - vh) - real(bias) * l2;
    if constexpr (sizeof(T) == 8) w.f64(rounded_f64(t0)), w.f64(rounded_f64(t1));
    else w.f32(rounded_f32(t0)), w.f32(rounded_f32(t1));
    w.end_row();
}
// The first entry of such a table, where V is one whole ln 2: its parts are L1 and L2 themselves.
template <class T> void first_pair(writer& w, int bias, const real& l1, const real& l2) {
    if constexpr (sizeof(T) == 8) w.f64(rounded_f64(real(-bias) * l1)), w.f64(rounded_f64(real(-bias) * l2));
    else w.f32(rounded_f32(real(-bias) * l1)), w.f32(rounded_f32(real(-bias) * l2));
    w.end_row();
}

// ln 2 and log10 2 in a high part, whose products with exponents are exact, and a low part that is short itself.
const real ln2_hi = 0x1.62e42fefap-1, ln2_lo = 0x1.cf79abc9ep-40;
const real log10_2_hi = 0x1.34413509fp-2, log10_2_lo = 0x1.e7fbcc47cp-40;
const real log10f_2_hi = 0x1.34420p-2, log10f_2_lo = -0x1.95ecp-19;
const real lnf2_hi = 0x1.62e4p-1, lnf2_lo = 0x1.7f7cp-20;

// (10 or 9) log 2 - log c, c = 512 to 1024, near 0 around both ends: at the ends themselves it is 0 and nothing else.
auto single(real (*log_of)(const real&), double of_512) {
    return [=](writer& w) {
        const real one = log_of(real(2));
        for (int c = 512; c <= 1024; c++) {
            double u = rounded_f64(real(c > 724 ? 10 : 9) * one - log_of(real(c)));
            if (c == 512) u = of_512;
            if (c == 1024) u = 0.0;
            w.f64(u), w.end_row();
        }
    };
}

// Reciprocals R of the slow paths' tables in units of 1/1024, 1/128 and 1/2048: fixed numbers, most of them nearest
// to the reciprocal of 1 + i/64.
const int n1024[] = {1024, 1008, 993, 978, 964, 950, 936, 923, 910, 898, 885, 874, 862, 851, 840, 829, 819,
                     809,  799,  789, 780, 771, 762, 753, 744, 736, 728, 720, 712, 704, 697, 690, 682, 675,
                     668,  662,  655, 649, 642, 636, 630, 624, 618, 612, 607, 601, 596, 590, 585, 580, 575,
                     570,  565,  560, 555, 550, 546, 541, 537, 533, 528, 524, 520, 516, 512};
const int n128[] = {128, 126, 124, 122, 120, 119, 117, 115, 114, 112, 111, 109, 108, 106, 105, 104, 102,
                    101, 100, 99,  98,  96,  95,  94,  93,  92,  91,  90,  89,  88,  87,  86,  85,  84,
                    84,  83,  82,  81,  80,  80,  79,  78,  77,  77,  76,  75,  74,  74,  73,  72,  72,
                    71,  71,  70,  69,  69,  68,  68,  67,  67,  66,  66,  65,  65,  64};
const int n2048[] = {2048, 2016, 1986, 1956, 1928, 1900, 1872, 1846, 1820, 1796, 1771, 1748, 1725,
                     1702, 1680, 1659, 1638, 1618, 1598, 1579, 1560, 1542, 1524, 1507, 1489, 1473,
                     1456, 1440, 1425, 1409, 1394, 1380, 1365, 1351, 1337, 1324, 1311, 1298, 1285,
                     1273, 1260, 1248, 1237, 1225, 1214, 1202, 1192, 1181, 1170, 1160, 1150, 1140,
                     1130, 1120, 1111, 1101, 1092, 1083, 1074, 1066, 1057, 1049, 1040, 1032, 1024};

// (R, hi, lo) with hi + lo = log(units / n), hi a multiple of 2^hi_unit, R = scale * n / units.
template <class T> auto rare(const int* n, int units, double scale, real (*log_of)(const real&), int hi_unit) {
    return [=](writer& w) {
        for (int i = 0; i <= 64; i++) {
            const real r = real(scale) * n[i] / units, v = log_of(real(units) / n[i]), hi = to_multiple(v, hi_unit);
            if constexpr (sizeof(T) == 8) w.f64(rounded_f64(r)), w.f64(rounded_f64(hi)), w.f64(rounded_f64(v - hi));
            else w.f32(rounded_f32(r)), w.f32(rounded_f32(hi)), w.f32(rounded_f32(v - hi));
            w.end_row();
        }
    };
}

// Numbers v in the steps of a table that is reached by the bits of v: first by halves (of a unit), then by ones.
template <class F> void each_v(double first, double middle, double last, F f) {
    for (double v = first; v < middle; v += 0.5)
        f(v);
    for (double v = middle; v <= last; v += 1)
        f(v);
}

} // namespace

real reciprocal_256(int i) { return to_multiple(real(1) / (real(1) + (real(i) + real(0.5)) / 256), -11); }

std::vector<table> log_tables() {
    return {
        {"log/tables/ln_pairs.inc",
         [](writer& w) { // V = 10 ln 2 - ln c, c = 512 to 1024
             first_pair<double>(w, 1022, ln2_hi, ln2_lo);
             for (int c = 513; c <= 1024; c++)
                 biased_pair<double>(w, real(10) * ln2() - log(real(c)), -40, 1023, ln2_hi, ln2_lo);
         }},
        {"log/tables/ln_single.inc", single(log, -0.0)},
        {"log/tables/log2_single.inc", single(log2, 0.0)},
        {"log/tables/log10_single.inc", single(log10, 0.0)},
        {"log/tables/log2_pairs.inc",
         [](writer& w) { // V = -1014 + log2(K / v), K = 369/256
             each_v(369, 512, 738, [&](double v) {
                 biased_pair<double>(w, real(-1014) + log2(real(369) / 256 / v), -40, 0, real(0), real(0));
             });
         }},
        {"log/tables/log10_pairs.inc",
         [](writer& w) { // V = 10 log10 2 + log10(K / v), K = 111/256
             each_v(222, 256, 444, [&](double v) {
                 if (v == 222) first_pair<double>(w, 1022, log10_2_hi, log10_2_lo);
                 else
                     biased_pair<double>(w, real(10) * log10(real(2)) + log10(real(111) / 256 / v), -40, 1023,
                                         log10_2_hi, log10_2_lo);
             });
         }},
        {"log/tables/log2f_pairs.inc",
         [](writer& w) { // V = -120 + log2(K / v), K = 1.4375
             each_v(92, 128, 184, [&](double v) {
                 biased_pair<float>(w, real(-120) + log2(real(1.4375) / v), -14, 0, real(0), real(0));
             });
         }},
        {"log/tables/log10f_pairs.inc",
         [](writer& w) { // V = 9 log10 2 + log10(K / v), K = 111/256
             each_v(111, 128, 222, [&](double v) {
                 if (v == 111) first_pair<float>(w, 126, log10f_2_hi, log10f_2_lo);
                 else
                     biased_pair<float>(w, real(9) * log10(real(2)) + log10(real(111) / 256 / v), -14, 127,
                                        log10f_2_hi, log10f_2_lo);
             });
         }},
        {"log/tables/ln1pf_pairs.inc",
         [](writer& w) { // V = 8 ln 2 - ln c, c = 128 to 256
             first_pair<float>(w, 126, lnf2_hi, lnf2_lo);
             for (int c = 129; c <= 256; c++)
                 biased_pair<float>(w, real(8) * ln2() - log(real(c)), -14, 127, lnf2_hi, lnf2_lo);
         }},
        // hi short enough that k * L + hi is exact on every subnormal.
        {"log/tables/ln_rare.inc", rare<double>(n1024, 1024, 1, log, -42)},
        {"log/tables/lnf_rare.inc", rare<float>(n128, 128, 1, log, -17)},
        {"log/tables/log10_rare.inc", rare<double>(n128, 128, 0.43359375, log10, -44)},
        {"log/tables/log10f_rare.inc", rare<float>(n128, 128, 111.1796875, log10, -18)},
        {"log/tables/log2f_rare.inc", rare<float>(n2048, 2048, 369.330078125, log2, -16)},
        {"log/tables/rcp_256.inc",
         [](writer& w) { // 1 / (1 + (i + 1/2) / 256) to a multiple of 2^-11
             for (int i = 0; i < 256; i++)
                 w.f32(rounded_f32(reciprocal_256(i))), w.end_row();
         }},
        {"log/tables/log2_256.inc",
         [](writer& w) { // (lo, hi): -log2 of these reciprocals, hi to 28 bits
             for (int i = 0; i < 256; i++) {
                 const real v = real(0) - log2(reciprocal_256(i)), hi = to_significant(v, 28);
                 w.f64(rounded_f64(v - hi)), w.f64(rounded_f64(hi)), w.end_row();
             }
         }},
    };
}

} // namespace orvane::tables
