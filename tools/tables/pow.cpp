// Tables of the powers: reciprocals that bring a significand near 1 (or near 1 / ln 2), the logarithms of what they
// take away, and powers of two.
#include "table.h"

namespace orvane::tables {

namespace {

// About 1 / ln 2, short: a reciprocal with this factor leaves the argument of a base-2 logarithm so scaled that the
// linear term of its polynomial is 1.
const double c = 0x1.7154740000000p+0;
const double cf = 0x1.71p+0;

void put(writer& w, double x) { w.f64(x); }
void put(writer& w, float x) { w.f32(x); }
template <class T> T rounded(const real& x) {
    if constexpr (sizeof(T) == 8) return rounded_f64(x);
    else return rounded_f32(x);
}
// hi, and the rest of t rounded.
template <class T> void hi_and_rest(writer& w, const real& t, const real& hi) {
    put(w, rounded<T>(hi)), put(w, rounded<T>(t - hi));
}

// One level of the slow path's three: reciprocals of 1 + i/up for i below `turn` and of 1 - (last - i)/down from
// there on, times a factor, with that many fraction bits.
struct level {
    int last, up, turn, down, fraction_bits;
    double factor;
    real reciprocal(int i) const {
        const real x = i < turn ? real(1) + real(i) / up : real(1) - real(last - i) / down;
        return to_significant(real(factor) / x, fraction_bits + 1);
    }
    // log2 of what the reciprocal takes away.
    real logarithm(int i) const { return log2(real(factor)) - log2(reciprocal(i)); }
};
template <class T> table reciprocals(const char* path, const level& l) {
    return {path, [=](writer& w) {
                for (int i = 0; i <= l.last; i++)
                    put(w, rounded<T>(l.reciprocal(i))), w.end_row();
            }};
}
// hi cut to a multiple of 2^unit: sums of them and of an exponent are exact. From `carry` on the exponent is one
// more.
template <class T> table logarithms(const char* path, const level& l, int carry, int unit) {
    return {path, [=](writer& w) {
                for (int i = 0; i <= l.last; i++) {
                    const real t = l.logarithm(i) - (i >= carry ? 1 : 0);
                    hi_and_rest<T>(w, t, cut_to_multiple(t, unit)), w.end_row();
                }
            }};
}
constexpr int never = 1 << 30;

const level first = {32, 32, never, 1, 14, 1}, firstf = {8, 8, never, 1, 6, 1};
const level second = {32, 512, 15, 1024, 14, 1}, secondf = {8, 32, 3, 64, 6, 1};
const level third = {128, 1 << 15, 61, 1 << 16, 22, c}, thirdf = {16, 256, 5, 512, 9, cf};
const level integer_powers = {1024, 1024, never, 1, 22, c};

} // namespace

std::vector<table> pow_tables() {
    return {
        reciprocals<double>("pow/tables/rcp1.inc", first),
        reciprocals<double>("pow/tables/rcp2.inc", second),
        reciprocals<double>("pow/tables/rcp3.inc", third),
        logarithms<double>("pow/tables/log1.inc", first, 16, -42),
        logarithms<double>("pow/tables/log2nd.inc", second, never, -42),
        logarithms<double>("pow/tables/log3.inc", third, never, -42),
        reciprocals<float>("pow/tables/rcp1f.inc", firstf),
        reciprocals<float>("pow/tables/rcp2f.inc", secondf),
        reciprocals<float>("pow/tables/rcp3f.inc", thirdf),
        logarithms<float>("pow/tables/log1f.inc", firstf, 4, -17),
        logarithms<float>("pow/tables/log2ndf.inc", secondf, never, -17),
        logarithms<float>("pow/tables/log3f.inc", thirdf, never, -17),
        {"pow/tables/exp128f.inc",
         [](writer& w) { // 2^(j/128), hi to 22 fraction bits
             for (int j = 0; j < 128; j++) {
                 const real t = exp2(real(j) / 128);
                 hi_and_rest<float>(w, t, to_significant(t, 23)), w.end_row();
             }
         }},
        {"pow/tables/log2_tab.inc",
         [](writer& w) { // t = -1023 - log2(r), r = (1 + i/512) / 2: the bias of the exponent field stands inside
             for (int i = 0; i <= 512; i++) {
                 const real t = real(-1022) - log2(real(1) + real(i) / 512);
                 hi_and_rest<double>(w, t, to_multiple(t + real(0x1p-44), -42)), w.end_row();
             }
         }},
        {"pow/tables/exp2_256.inc",
         [](writer& w) {
             for (int j = 0; j < 256; j++)
                 w.f64(rounded_f64(exp2(real(j) / 256))), w.end_row();
         }},
        {"pow/tables/exp_tab.inc",
         [](writer& w) { // 2^(j/2048), a hair less, so that chords err to both sides
             for (int j = 0; j <= 2048; j++)
                 w.f64(rounded_f64(exp2(real(j) / 2048) * real(0x1.ffffffc27dd9ep-1))), w.end_row();
         }},
        reciprocals<double>("pow/tables/rcp_tab.inc", integer_powers),
        {"pow/tables/log_tab.inc",
         [](writer& w) { // log2 of what rcp_tab takes away, hi to 20 fraction bits of its significand
             for (int i = 0; i <= 1024; i++) {
                 const real t = integer_powers.logarithm(i) - (i >= 512 ? 1 : 0);
                 hi_and_rest<double>(w, t, cut_to_significant(t, 21)), w.end_row();
             }
         }},
        {"pow/tables/ln_entries.inc",
         [](writer&
                w) { // (hi, lo, r): r = 1 / (1 + i/64) to 7 fraction bits, hi + lo = -ln r, hi in multiples of 2^-14
             for (int i = 0; i <= 64; i++) {
                 const real r = to_significant(real(1) / (real(1) + real(i) / 64), 8), t = real(0) - log(r);
                 hi_and_rest<float>(w, t, cut_to_multiple(t, -14)), w.f32(rounded_f32(r)), w.end_row();
             }
         }},
    };
}

} // namespace orvane::tables
