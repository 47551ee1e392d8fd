#include "arguments.h"

#include <bit>
#include <cmath>
#include <limits>

namespace orvane {

namespace {

// Without the standard library's distributions, whose numbers differ between implementations, and by single
// operations alone, so that the arguments do not depend on any mathematical library.
struct drawing {
    uint64_t state;
    uint64_t operator()() {
        uint64_t z = state += 0x9E3779B97F4A7C15;
        z = (z ^ z >> 30) * 0xBF58476D1CE4E5B9;
        z = (z ^ z >> 27) * 0x94D049BB133111EB;
        return z ^ z >> 31;
    }
    double unit() { return (*this)() * 0x1p-64; }
    double between(double lo, double hi) { return lo + (hi - lo) * unit(); }
    void shuffle(words& w) {
        for (size_t i = w.size(); i > 1; i--)
            std::swap(w[i - 1], w[(*this)() % i]);
    }
};

// The logarithm by squaring, one bit per step.
double log2_of(double x) {
    int exponent;
    double m = 2 * std::frexp(std::fabs(x), &exponent), sum = exponent - 1;
    for (double bit = 0.5; bit > 0x1p-40; bit /= 2)
        if (m *= m; m >= 2) m /= 2, sum += bit;
    return sum;
}

// Lanes of one argument.
class source {
public:
    source(lane_type t, double lo, double hi, const block_constants& c, uint64_t seed)
        : t(t), lo(lo), hi(hi), constants(c), draw{seed}, bits(8 * size_of(t)), fraction(bits == 64 ? 52 : 23),
          all(~uint64_t(0) >> (64 - bits)), sign(uint64_t(1) << (bits - 1)),
          exponents_end(is_floating(t) ? (1 << (bits - 1 - fraction)) - 1 : bits) {}

    const lane_type t;
    const double lo, hi;
    const block_constants& constants;
    drawing draw;
    const int bits, fraction;
    const uint64_t all, sign;
    const int exponents_end; // the exponent field of infinities; bits of an integer

    bool real() const { return is_floating(t); }
    bool is_signed() const { return t != lane_type::u32 && t != lane_type::u64; }
    bool nan(uint64_t w) const { return real() && value_of(t, w) != value_of(t, w); }
    bool finite(uint64_t w) const { return int(w >> fraction & exponents_end) != exponents_end; }
    uint64_t low_bits() { return draw() & ((uint64_t(1) << fraction) - 1); }
    uint64_t float_of(int field, uint64_t fraction_bits, bool negative = false) const {
        return (negative ? sign : 0) | uint64_t(field) << fraction | fraction_bits;
    }
    uint64_t word(double v) const {
        if (real()) return word_of(t, v);
        if (v != v) return 0;
        const double least = is_signed() ? -std::ldexp(1, bits - 1) : 0, end = std::ldexp(1, bits - is_signed());
        return v < least ? word_of(t, least) : v >= end ? sign - 1 : word_of(t, v);
    }

    words ordinary(int n) {
        words w;
        for (int i = 0; i < n; i++)
            w.push_back(word(lo + (hi - lo) * ((i + draw.unit()) / n)));
        return w;
    }
    words magnitudes(int n) { // down from the end of the ordinary range, and a little beyond it
        words w;
        const double end = std::max(std::fabs(lo), std::fabs(hi));
        for (int i = 0; i < n; i++) {
            const double v = std::ldexp(end * draw.between(1, 2), -(i % 30));
            w.push_back(word(lo < 0 && draw() & 1 ? -v : v));
        }
        return w;
    }
    words exponents(int n) {
        words w;
        for (int i = 0; i < n; i++) {
            const int e = int64_t(i) * exponents_end / n;
            if (real()) w.push_back(float_of(e, low_bits(), draw() & 1));
            else
                w.push_back(draw() >> (64 - bits) >> e),
                    w.back() = draw() & 1 && is_signed() ? -w.back() & all : w.back();
        }
        return w;
    }
    // All combinations of leading bits of a significand, a number in each interval and at each edge, next to 1.
    words leading(int leading_bits, int low_field, int high_field) {
        words w;
        const int bias = exponents_end / 2, shift = fraction - leading_bits;
        for (uint64_t i = 0; i < uint64_t(1) << leading_bits; i++)
            w.push_back(float_of(bias + low_field + int(draw() % (high_field - low_field + 1)),
                                 i << shift | (low_bits() >> leading_bits)));
        return w;
    }
    // A number around each point of a grid, k / parts.
    words grid(int first, int last, int parts) {
        words w;
        for (int k = first; k <= last; k++)
            w.push_back(word((k + draw.between(-0.5, 0.5)) / parts));
        return w;
    }
    // Numbers in each 32nd of each binade.
    words binades(int first, int last) {
        words w;
        for (int e = first; e <= last; e++)
            for (int i = 0; i < 64; i++)
                w.push_back(float_of(exponents_end / 2 + e, (uint64_t(i / 2) << (fraction - 5)) | low_bits() >> 5));
        return w;
    }
    words edges(int leading_bits) {
        words w;
        const int bias = exponents_end / 2, shift = fraction - leading_bits;
        for (uint64_t i = 0; i < uint64_t(1) << leading_bits; i++)
            w.push_back(float_of(bias - int(draw() % 2), i << shift) - (draw() % 3 ? 0 : 1));
        return w;
    }
    words limits() {
        std::set<uint64_t> at;
        for (uint64_t v : constants.wide) {
            if (t == lane_type::f64 || bits == 64) at.insert(v);
            if (t == lane_type::f32 || !real()) at.insert(word(std::bit_cast<double>(v)));
            if (bits == 32) at.insert(v & all);
        }
        for (uint32_t v : constants.narrow) {
            if (t == lane_type::f64) {
                at.insert(uint64_t(v) << 32), at.insert(uint64_t(v) << 32 | 0xFFFFFFFF);
                at.insert(word(std::bit_cast<float>(v)));
            } else at.insert(v);
            if (!real()) at.insert(word(std::bit_cast<float>(v)));
        }
        words w;
        for (uint64_t v : at)
            for (int step = -2; step <= 2; step++)
                for (uint64_t s : {uint64_t(0), sign})
                    if (!real() || finite((v + step) & all)) w.push_back(((v + step) & all) ^ s);
        return w;
    }
    words whole(int n) { // whole numbers, halves and quarters, and their neighbours
        words w;
        for (int i = 0; i < n; i++) {
            const double v =
                i % 2 ? (i / 2 - n / 4) * 0.25 : std::floor(draw.between(-1, 1) * std::ldexp(1, 2 + i % 29)) / 2;
            w.push_back(word(v));
            if (real() && i % 3 == 0) w.back() = (w.back() + (draw() & 1 ? 1 : -1)) & all;
        }
        return w;
    }
    words quarter_turns(int n) { // the numbers next to k pi / 4
        words w;
        for (int i = 0; i < n; i++) {
            const double k = i < n / 2 ? i - n / 4 : std::floor(draw.between(-1, 1) * std::ldexp(1, i % 28));
            w.push_back((word(k * 0x1.921FB54442D18p-1) + i % 3 - 1) & all);
        }
        return w;
    }
    words beside_one() { // 1 +- 2^-k and near it, of both signs
        words w;
        for (int k = 1; k <= fraction; k++)
            for (int side : {-1, 1})
                for (int s : {1, -1}) {
                    w.push_back(word(s * (1 + side * std::ldexp(1, -k))));
                    w.push_back(word(s * (1 + side * std::ldexp(draw.between(1, 2), -k))));
                }
        return w;
    }
    words beside_whole(int n) { // -k +- 2^-j and near it
        words w;
        for (int k = 1; k <= n; k++)
            for (int j = 2; j <= fraction; j++)
                for (int side : {-1, 1})
                    w.push_back(word(-k + side * std::ldexp(draw.between(1, 2), -j)));
        return w;
    }
    words subnormals(int n) {
        words w;
        for (int i = 0; i < n; i++)
            w.push_back((low_bits() >> i % fraction) | (draw() & 1 ? sign : 0));
        return w;
    }
    words powers_of_two() {
        words w;
        for (int k = 0; k < bits; k++)
            for (int step = -2; step <= 2; step++)
                for (int s : {1, -1})
                    w.push_back(s * ((uint64_t(1) << k) + step) & all);
        return w;
    }
    words halfway(int n) { // between two floats, or two doubles, and next to that
        words w;
        for (int i = 0; i < n; i++) {
            const int kept = i % 2 ? 24 : 53, length = std::min(bits, kept + 1 + int(draw() % 40));
            uint64_t v = (draw() | uint64_t(1) << 63) >> (64 - length);
            if (length > kept) {
                const uint64_t half = uint64_t(1) << (length - kept - 1);
                v = (v & ~(2 * half - 1)) | half;
            }
            v += i / 2 % 3 - 1;
            w.push_back((draw() & 1 ? -v : v) & all);
        }
        return w;
    }
    words specials() const {
        if (!real()) {
            words w{0, 1, 2, 3, 5, 7, 10, 100, all, all - 1, all - 2, sign, sign + 1, sign - 1, sign - 2, all >> 2};
            return w;
        }
        const uint64_t inf = uint64_t(exponents_end) << fraction, quiet = uint64_t(1) << (fraction - 1),
                       one = word(1);
        words w{0,
                1,
                (uint64_t(1) << fraction) - 1,
                uint64_t(1) << fraction,
                one,
                one + 1,
                one - 1,
                word(2),
                word(0.5),
                word(3),
                inf - 1,
                inf,
                inf | quiet,
                inf | quiet | 0x1234,
                inf | 1,
                inf | 0x2345,
                word(1e30),
                word(10)};
        for (size_t n = w.size(), i = 0; i < n; i++)
            w.push_back(w[i] | sign);
        return w;
    }
    words patterns(int n) {
        words w;
        for (int i = 0; i < n; i++)
            w.push_back(draw() & all);
        return w;
    }
};

words joined(std::initializer_list<words> lists) {
    words all;
    for (const auto& l : lists)
        all.insert(all.end(), l.begin(), l.end());
    return all;
}

// For two lists that become pairs: as many lanes as the longer one has, the shorter one repeated and mixed.
std::vector<words> paired(words x, words y, drawing& draw) {
    const size_t n = std::max(x.size(), y.size());
    auto stretched = [&](words& w) {
        const size_t own = w.size();
        for (size_t i = own; i < n; i++)
            w.push_back(w[i % own]);
    };
    stretched(x), stretched(y);
    draw.shuffle(y);
    return {x, y};
}

} // namespace

std::vector<rule> arguments_by_rule(const kernel_row& row, const block_constants& constants) {
    source x(row.argument(0), row.range[0], row.range[1], constants, 1);
    std::vector<rule> rules;
    if (row.arguments() == 1) {
        auto add = [&](const char* name, words w) { rules.push_back({name, {std::move(w)}}); };
        add("ordinary range", x.ordinary(2048));
        if (!x.real()) {
            add("powers of two and their neighbours", x.powers_of_two());
            add("halfway between floats", x.halfway(2048));
            add("every length", x.exponents(2048));
            add("constants of the block and their neighbours", x.limits());
            add("specials", x.specials());
            add("any pattern", x.patterns(2048));
            return rules;
        }
        add("ordinary magnitudes", x.magnitudes(1024));
        add("every exponent", x.exponents(x.bits == 64 ? 4096 : 2048));
        add("leading bits next to 1", x.leading(10, -1, 0));
        add("leading bits", x.leading(9, -4, 6));
        add("edges of leading bits", x.edges(9));
        add("constants of the block and their neighbours", x.limits());
        add("whole numbers, halves, quarters", x.whole(1024));
        add("quarter turns", x.quarter_turns(512));
        add("beside 1", x.beside_one());
        add("subnormals", x.subnormals(256));
        add("specials", x.specials());
        add("any pattern", x.patterns(1024));
        add("each 32nd of a binade", x.binades(-8, 13));
        add("around each 128th", x.grid(0, 3583, 128));
        add("around each eighth", x.grid(-1792, 1792, 8));
        add("beside negative whole numbers", x.beside_whole(24));
        return rules;
    }

    source y(row.argument(1), row.range[2], row.range[3], constants, 2);
    drawing& draw = x.draw;
    auto add = [&](const char* name, words a, words b) {
        if (a.empty() || b.empty()) return; // no block
        rules.push_back({name, paired(std::move(a), std::move(b), draw)});
    };
    // b from a, lane by lane.
    auto add_with = [&](const char* name, words a, auto second) {
        words b;
        for (uint64_t w : a)
            b.push_back(second(w));
        rules.push_back({name, {std::move(a), std::move(b)}});
    };
    add("ordinary ranges", x.ordinary(2048), y.ordinary(2048));
    add("ordinary magnitudes", x.magnitudes(1024), y.magnitudes(1024));
    add("every exponent", x.exponents(2048), y.exponents(2048));
    add("constants of the block with ordinary y", x.limits(), y.magnitudes(256));
    add("ordinary x with constants of the block", x.magnitudes(256), y.limits());
    add("whole numbers, halves, quarters", x.whole(1024), y.whole(1024));
    const words sx = x.specials(), sy = y.specials();
    rule pairs{"specials", {{}, {}}}, nans{two_nans, {{}, {}}};
    for (uint64_t a : sx)
        for (uint64_t b : sy) {
            auto& of = (x.nan(a) && y.nan(b) ? nans : pairs).arguments;
            of[0].push_back(a), of[1].push_back(b);
        }
    rules.push_back(std::move(pairs));
    if (!nans.arguments[0].empty()) rules.push_back(std::move(nans));
    add("specials with ordinary y", sx, y.magnitudes(128));
    add("ordinary x with specials", x.magnitudes(128), sy);
    add("any pattern", x.patterns(1024), y.patterns(1024));
    if (!x.real()) {
        add("powers of two and their neighbours", x.powers_of_two(), y.powers_of_two());
        add("every length", x.exponents(2048), y.exponents(2048));
        add_with("nearly multiples", y.exponents(2048), [&](uint64_t w) { return w; });
        auto& a = rules.back().arguments[0];
        for (uint64_t& w : a)
            w = (w * (draw() >> (32 + draw() % 32)) + draw() % 3 - 1) & x.all;
    } else {
        const words around = joined({x.exponents(512), x.leading(9, -1, 0), x.leading(9, -6, 6), x.beside_one()});
        auto value = [&](uint64_t w) { return value_of(x.t, w); };
        add("leading bits of x", x.leading(10, -1, 0), y.magnitudes(512));
        add("subnormals", x.subnormals(128), y.exponents(256));
        if (y.real()) {
            add("leading bits of y", x.magnitudes(512), y.leading(10, -1, 0));
            add("ordinary x with subnormals", x.exponents(256), y.subnormals(128));
            add_with("nearly equal", joined({x.exponents(256), x.magnitudes(256)}),
                     [&](uint64_t w) { return ((w + draw() % 5 - 2) & x.all) ^ (draw() % 4 ? 0 : x.sign); });
            const words ratios = joined({x.leading(10, -1, 0), x.leading(9, -8, 8)});
            size_t i = 0;
            add_with("leading bits of the quotient", x.magnitudes(int(ratios.size())), [&](uint64_t w) {
                const double r = value(ratios[i++]) * (draw() & 1 ? 1 : -1);
                return y.word(draw() & 1 ? value(w) * r : value(w) / r);
            });
        }
        // y log2(x) up to both ends of the format, and near them.
        const double top = x.bits == 64 ? 1024 : 128, bottom = x.bits == 64 ? -1075 : -150;
        add_with("powers", around, [&](uint64_t w) { return y.word(draw.between(bottom, top) / log2_of(value(w))); });
        add_with("small powers", around, [&](uint64_t w) { return y.word(draw.between(-8, 8) / log2_of(value(w))); });
        add_with("powers at the ends of the format", around, [&](uint64_t w) {
            const double ends[] = {top, bottom, x.bits == 64 ? -1022. : -126.};
            return y.word((ends[draw() % 3] + draw.between(-1, 1)) / log2_of(value(w)));
        });
        if (!y.real()) {
            add("small whole numbers", around,
                joined({words{1, 2, 3, 4, 5, 6, 7, 8}, words{y.all, y.all - 1, y.all - 2}}));
            add("every exponent with any shift", x.exponents(2048), y.magnitudes(1024));
        }
    }
    if (row.arguments() == 3) {
        source z(row.argument(2), row.range[2], row.range[3], constants, 3);
        for (auto& r : rules) {
            words c;
            for (size_t i = 0; i < r.arguments[0].size(); i++) {
                const double product = value_of(x.t, r.arguments[0][i]) * value_of(y.t, r.arguments[1][i]);
                const uint64_t near = (z.word(-product) + draw() % 5 - 2) & z.all;
                c.push_back(i % 3 == 0   ? near
                            : i % 3 == 1 ? r.arguments[0][(i * 7) % r.arguments[0].size()]
                                         : z.patterns(1)[0]);
            }
            r.arguments.push_back(std::move(c));
        }
    }
    return rules;
}

} // namespace orvane
