// The kernel skeleton: every export is an instance of it.
//
// A kernel is a struct
//
//     struct K : kernel<one_argument<float>, block, slow_path> {
//         template <int W> static auto vector_path(block, x...)
//
// of a signature (which lanes come in and go out: calling.h), its constant block if it has one, and its slow path if
// it can have special lanes (the block is no_block where there is none before it). The formula runs on W lanes of
// each argument and returns an `answer`: the result, a second result or out-lane, and the special lanes, each marked
// by its sign (by a lane of ones, say). The rest of an instance is here: spare lane, copy-up of low lanes, the
// formula register by register, the one branch of the ordinary path, the callout, results in their places.
//
// A kernel may have more members:
//
//     static constexpr double spare = 1;
//         the value of lane 3 of every input of a 3-wide vector; 0.75 where a kernel names none
//     template <int W> static auto settle(block, x..., answer)
//         finishes special lanes without a slow path: gives the answer with those lanes taken out of `special`
//     template <int W> static auto large_path(block, x..., answer)
//         an inline path for lanes that the formula left as special; gives the results of all lanes, and as special
//         the lanes that need the slow path
//     template <int W> static auto beyond(block, x...)
//         beside large_path: marks lanes that the formula must not see. A vector with such lanes takes
//         large_path(block, x...) in the formula's place
//     template <int W> static auto reduce(block, x...)
//     template <int W> static auto large_reduce(block, x..., reduced)
//         a step before the formula, which is then vector_path(block, x..., reduced); where reduced.special has
//         lanes, large_reduce gives the reduced arguments of all lanes anew
//     template <int W> static auto prepare(block, x...)
//     template <int W> static auto proceed(block, x..., ready)
//         the formula in stages, of which vector_path(block, x..., ready) is the last: each stage runs on all chunks
//         before the next begins, and takes what the one before gave
//     static constexpr bool all_lanes = true;
//         no formula: every lane is a slow-path lane
//
// A kernel has stages where it is one long chain of steps: the processor holds too few steps in waiting to reach the
// next chunk's chain before this one ends. Between stages values lie in the frame, which costs a store and a load
// each; a stage gives up to three, named first, second and third. Floats at 16 lanes are two chunks, too few to gain
// by it: a kernel of both types says `static constexpr bool staged = sizeof(T) == 8`, and then its stages run in a
// row.
//
// large_path and large_reduce each stand behind a branch that ordinary vectors never take and run register by
// register. A kernel that finishes every lane has no `special` in its answer and no slow path.
#pragma once

#include "calling.h"
#include "callout.h"
#include "lanes.h"
#include "lookups.h"
#include "slots.h"

namespace orvane {

struct nothing {};

// What a formula gives: answer{y, special}, or answer{y, second, special} with a second result or out-lane; a formula
// that finishes every lane returns y alone, or results{y, second}.
template <class First, class Second, class Special> struct answer {
    First first;
    Second second;
    Special special;
};
template <class First, class Special> struct answer<First, nothing, Special> {
    First first;
    Special special;
};
template <class First, class Special> answer(First, Special) -> answer<First, nothing, Special>;
template <class First, class Second, class Special> answer(First, Second, Special) -> answer<First, Second, Special>;
template <class First, class Second> struct results {
    First first;
    Second second;
};
template <class First, class Second, class Third> struct three_results {
    First first;
    Second second;
    Third third;
};

struct no_block_type {};
inline constexpr no_block_type no_block{};

// What every kernel has by its bases.
template <class S, const auto& Block = no_block, auto&... SlowPath> struct kernel {
    using signature = S;
    static constexpr auto& block = Block;
    static constexpr double spare = 0.75;
    static constexpr bool staged = true;
};
template <class S, const auto& Block, auto& SlowPath> struct kernel<S, Block, SlowPath> : kernel<S, Block> {
    static constexpr auto& slow_path = SlowPath;
};

namespace detail {

// f(elements of the tuple). std::apply calls by way of functions that some compilers leave out of line.
template <class F, class Tuple> ORVANE_INLINE decltype(auto) applied(const F& f, Tuple& t) {
    return [&]<size_t... I>(std::index_sequence<I...>) ORVANE_LAMBDA->decltype(auto) { return f(std::get<I>(t)...); }
    (std::make_index_sequence<std::tuple_size_v<std::remove_const_t<Tuple>>>{});
}

template <class A> ORVANE_INLINE auto results_of(const A& a) {
    if constexpr (requires { a.second; }) return std::tuple{a.first, a.second};
    else if constexpr (requires { a.first; }) return std::tuple{a.first};
    else return std::tuple{a};
}

// Whether K has a member of that name, template or not: with a second base that has one too the name is ambiguous.
#define ORVANE_HAS_MEMBER(name)                                                                                      \
    struct with_##name {                                                                                             \
        int name;                                                                                                    \
    };                                                                                                               \
    template <class K> struct beside_##name : K, with_##name {};                                                     \
    template <class K>                                                                                               \
    concept has_##name = !requires {                                                                                 \
        &beside_##name<K>::name;                                                                                     \
    };
ORVANE_HAS_MEMBER(settle)
ORVANE_HAS_MEMBER(large_path)
ORVANE_HAS_MEMBER(beyond)
ORVANE_HAS_MEMBER(reduce)
ORVANE_HAS_MEMBER(prepare)
ORVANE_HAS_MEMBER(proceed)
#undef ORVANE_HAS_MEMBER

template <class A>
concept has_special = requires(A a) {
    a.special.v;
};

// The bits of the lanes of a chunk that count.
template <int C> inline constexpr unsigned live_lanes = C < 4 ? (1u << C) - 1 : ~0u;

// The answers of N chunks of C lanes, one finished before the next begins. From then on special lanes are bits in an
// integer register, so that no vector register is kept for them. The ordinary path only ORs these bits; the mask of
// the whole vector is put together behind the branch.
template <class A, int C, size_t N> struct answers {
    A chunk[N];
    unsigned special[N];

    ORVANE_INLINE void put(auto i, const A& a) {
        chunk[i] = a;
        if constexpr (N == 1) void();
        else if constexpr (requires { a.third; })
            chunk[i].first = finished(a.first), chunk[i].second = finished(a.second),
            chunk[i].third = finished(a.third);
        else if constexpr (requires { a.second; })
            chunk[i].first = finished(a.first), chunk[i].second = finished(a.second);
        else if constexpr (requires { a.first; }) chunk[i].first = finished(a.first);
        else chunk[i] = finished(a);
        if constexpr (has_special<A>) {
            special[i] = a.special.signs();
            if constexpr (N > 1) asm("" : "+r"(special[i]));
        }
    }
    ORVANE_INLINE bool any_special() const {
        unsigned some = 0;
        each<N>([&](auto i) ORVANE_LAMBDA { some |= special[i]; });
        return __builtin_expect((some & live) != 0, 0);
    }
    // Bit i is set for special lane i of the whole vector.
    ORVANE_INLINE unsigned mask() const {
        unsigned m = 0;
        each<N>([&](auto i) ORVANE_LAMBDA { m |= (special[i] & live) << (C * i); });
        return m;
    }
    static constexpr unsigned live = live_lanes<C>;
    // A chunk's answer for the steps behind the branch; its special lanes are made from their bits where only these
    // were kept.
    ORVANE_INLINE A again(auto i) const {
        A a = chunk[i];
        if constexpr (N > 1) a.special = decltype(a.special)::of_bits(special[i]);
        return a;
    }
};

} // namespace detail

// A kernel's steps as objects, for the rooms below to run on chunks of C lanes.
#define ORVANE_STEP(name, member)                                                                                    \
    template <class K, int C> struct name {                                                                          \
        ORVANE_INLINE auto operator()(const auto&... a) const { return K::template member<C>(a...); }                \
    };
ORVANE_STEP(formula, vector_path)
ORVANE_STEP(settle, settle)
ORVANE_STEP(large_path, large_path)
ORVANE_STEP(beyond, beyond)
ORVANE_STEP(reduce, reduce)
ORVANE_STEP(prepare, prepare)
ORVANE_STEP(proceed, proceed)
ORVANE_STEP(large_reduce, large_reduce)
#undef ORVANE_STEP
// All stages of a formula in a row.
template <class K, int C> struct all_stages {
    ORVANE_INLINE auto operator()(const auto& c, const auto&... x) const {
        const auto ready = K::template prepare<C>(c, x...);
        if constexpr (detail::has_proceed<K>)
            return K::template vector_path<C>(c, x..., K::template proceed<C>(c, x..., ready));
        else return K::template vector_path<C>(c, x..., ready);
    }
};

// Chunk I of every argument, with its spare lane set and its low lanes copied up.
template <class K, int W, int I> ORVANE_INLINE auto admit_chunk(const incoming<typename K::signature, W>& came) {
    using arguments = typename K::signature::arguments;
    constexpr int C = layout<typename K::signature, W>::chunk;
    return [&]<int... J>(std::integer_sequence<int, J...>) ORVANE_LAMBDA {
        return std::tuple{admit<C>(came.template chunk<J, I>(), (typename arguments::template at<J>)K::spare)...};
    }
    (std::make_integer_sequence<int, arguments::count>{});
}

// Whether a chunk's steps run on the ordinary path, or behind a branch that ordinary vectors never take.
enum class moment { at_first, behind_branch };
using enum moment;

// First room: the lanes that came in, and the steps that run on them.
//
// Arguments in registers are admitted at once and stay there. Arguments on the stack are loaded where a chunk needs
// them, and loaded again behind a branch rather than kept in registers in between. The second load is hidden from the
// compiler, which would make one of the two.
template <class K, int W> struct admission {
    using S = typename K::signature;
    using L = layout<S, W>;
    static constexpr int C = L::chunk, N = L::chunks;

    incoming<S, W> came;
    objects where;
    decltype(admit_chunk<K, W, 0>(came)) x[N];
    decltype(&K::block) block = &K::block;

    ORVANE_INLINE admission(uint64_t i0, uint64_t i1, const first_vector<S, W>& v0, __m256 v1, __m256 v2, __m256 v3) {
        came.integer[0] = i0;
        came.integer[1] = i1;
        if constexpr (L::in_memory) {
            came.stack = v0.bytes;
            where = {(void*)i0, (void*)i1};
        } else {
            came.vector[0] = v0;
            came.vector[1] = v1;
            came.vector[2] = v2;
            came.vector[3] = v3;
            where = {nullptr, (void*)i0};
            each<N>([&](auto i) ORVANE_LAMBDA { x[i] = admit_chunk<K, W, i>(came); });
        }
    }

    template <moment When> ORVANE_INLINE auto chunk(auto i) const {
        if constexpr (L::in_memory) {
            incoming<S, W> from = came;
            if constexpr (When == behind_branch) asm("" : "+r"(from.stack) : "i"(+i));
            return admit_chunk<K, W, i>(from);
        } else return x[i];
    }

    // A step on one chunk: its constants, its arguments, and what earlier steps gave.
    template <moment When, template <class, int> class Step> ORVANE_INLINE auto run(auto i, const auto&... more) {
        const auto& c = anew(block);
        const auto x = chunk<When>(i);
        return detail::applied([&](const auto&... a) ORVANE_LAMBDA { return Step<K, C>()(c, a..., more...); }, x);
    }
    // One on every chunk: f(i) runs it on chunk i.
    template <class F> ORVANE_INLINE auto run_all(F f) {
        detail::answers<decltype(f(std::integral_constant<int, 0>())), C, N> all;
        each<N>([&](auto i) ORVANE_LAMBDA { all.put(i, f(i)); });
        return all;
    }

    // Whether some chunk has arguments beyond the formula.
    ORVANE_INLINE bool any_beyond() {
        unsigned some = 0;
        each<N>([&](auto i) ORVANE_LAMBDA { some |= run<at_first, beyond>(i).signs(); });
        return __builtin_expect((some & detail::live_lanes<C>) != 0, 0);
    }

    // Values that live on behind the branch become new values there. A large path needs all registers and keeps some
    // of them in memory; without this the compiler would put them there on the ordinary path, too.
    ORVANE_INLINE void rename() {
        if constexpr (!L::in_memory)
            each<N>([&](auto i) ORVANE_LAMBDA {
                detail::applied([](auto&... b) ORVANE_LAMBDA { ((b = finished(b)), ...); }, x[i]);
            });
    }
    template <class Answers> ORVANE_INLINE void rename(Answers& a) {
        rename();
        each<N>([&](auto i) ORVANE_LAMBDA {
            a.chunk[i].first = finished(a.chunk[i].first);
            if constexpr (requires { a.chunk[i].second; }) a.chunk[i].second = finished(a.chunk[i].second);
        });
    }
};

// Last room of the ordinary path: the results, without the special lanes, go to where the caller looks for them.
template <class K, int W, class Answers> ORVANE_INLINE auto leave(const admission<K, W>& in, const Answers& a) {
    decltype(detail::results_of(a.chunk[0])) r[in.N];
    each<in.N>([&](auto i) ORVANE_LAMBDA { r[i] = detail::results_of(a.chunk[i]); });
    return hand_over<typename K::signature, W>(r, in.where.result, in.where.out);
}

// Results that the slow path gives or completes: for the lanes in the mask, or for all.
template <class K, int W, class R, size_t N, class Wrapper>
ORVANE_INLINE void call_out_lanes(admission<K, W>& in, R (&r)[N], unsigned mask, Wrapper* wrapper) {
    call_out<K, W>([&](auto i) ORVANE_LAMBDA { return in.template chunk<behind_branch>(i); }, r, mask, wrapper,
                   in.where);
}

// Behind the branch: special lanes settled where the kernel can do that, the others by the slow path.
template <class K, int W, class Answers, class Wrapper>
ORVANE_INLINE auto leave_by_callout(admission<K, W>& in, Answers& a, Wrapper* wrapper) {
    if constexpr (detail::has_settle<K>)
        each<in.N>([&](auto i) ORVANE_LAMBDA { a.put(i, in.template run<behind_branch, settle>(i, a.again(i))); });
    decltype(detail::results_of(a.chunk[0])) r[in.N];
    each<in.N>([&](auto i) ORVANE_LAMBDA { r[i] = detail::results_of(a.chunk[i]); });
    const unsigned mask = a.mask();
    if (!detail::has_settle<K> || mask) call_out_lanes(in, r, mask, wrapper);
    return hand_over<typename K::signature, W>(r, in.where.result, in.where.out);
}

// From answers to the return, by the one branch.
template <class K, int W, class Answers, class Wrapper>
ORVANE_INLINE auto conclude(admission<K, W>& in, Answers& a, Wrapper* wrapper) {
    if constexpr (detail::has_special<std::remove_reference_t<decltype(a.chunk[0])>>)
        if (a.any_special()) return leave_by_callout(in, a, wrapper);
    return leave(in, a);
}

// Every lane by the slow path, where a family has no formula.
template <class K, int W, class Wrapper>
ORVANE_INLINE auto leave_all_to_slow_path(admission<K, W>& in, Wrapper* wrapper) {
    using S = typename K::signature;
    using first = lanes<typename S::results::template at<0>, in.C>;
    using out = std::conditional_t<S::has_out, typename S::out, float>;
    std::conditional_t<S::has_out, std::tuple<first, lanes<out, in.C>>, std::tuple<first>> r[in.N];
    call_out_lanes(in, r, 0, wrapper);
    return hand_over<S, W>(r, in.where.result, in.where.out);
}

// One call of an export, from room to room.
template <class K, int W, class Wrapper>
ORVANE_INLINE entry_result<typename K::signature, W> enter(Wrapper* wrapper, uint64_t i0, uint64_t i1,
                                                           const first_vector<typename K::signature, W>& v0,
                                                           __m256 v1, __m256 v2, __m256 v3) {
    admission<K, W> in(i0, i1, v0, v1, v2, v3);

    if constexpr (calls_for_all_lanes<K>) return leave_all_to_slow_path(in, wrapper);
    else if constexpr (detail::has_beyond<K>) {
        if (in.any_beyond()) {
            in.rename();
            auto large =
                in.run_all([&](auto i) ORVANE_LAMBDA { return in.template run<behind_branch, large_path>(i); });
            return conclude(in, large, wrapper);
        }
        auto a = in.run_all([&](auto i) ORVANE_LAMBDA { return in.template run<at_first, formula>(i); });
        return conclude(in, a, wrapper);
    } else if constexpr (detail::has_large_path<K>) {
        // Where it runs, the large path's answers take over, with its own special lanes.
        auto a = in.run_all([&](auto i) ORVANE_LAMBDA { return in.template run<at_first, formula>(i); });
        if (!a.any_special()) return leave(in, a);
        in.rename(a);
        auto large = in.run_all(
            [&](auto i) ORVANE_LAMBDA { return in.template run<behind_branch, large_path>(i, a.again(i)); });
        return conclude(in, large, wrapper);
    } else if constexpr (detail::has_reduce<K>) {
        auto reduced = in.run_all([&](auto i) ORVANE_LAMBDA { return in.template run<at_first, reduce>(i); });
        if (reduced.any_special())
            each<in.N>([&](auto i) ORVANE_LAMBDA {
                reduced.chunk[i] = in.template run<behind_branch, large_reduce>(i, reduced.again(i));
            });
        auto a =
            in.run_all([&](auto i) ORVANE_LAMBDA { return in.template run<at_first, formula>(i, reduced.chunk[i]); });
        return conclude(in, a, wrapper);
    } else if constexpr (detail::has_prepare<K> && !(K::staged && in.N > 1)) {
        auto a = in.run_all([&](auto i) ORVANE_LAMBDA { return in.template run<at_first, all_stages>(i); });
        return conclude(in, a, wrapper);
    } else if constexpr (detail::has_prepare<K>) {
        auto ready = in.run_all([&](auto i) ORVANE_LAMBDA { return in.template run<at_first, prepare>(i); });
        if constexpr (detail::has_proceed<K>) {
            auto further = in.run_all(
                [&](auto i) ORVANE_LAMBDA { return in.template run<at_first, proceed>(i, ready.chunk[i]); });
            auto a = in.run_all(
                [&](auto i) ORVANE_LAMBDA { return in.template run<at_first, formula>(i, further.chunk[i]); });
            return conclude(in, a, wrapper);
        } else {
            auto a = in.run_all([&](auto i)
                                    ORVANE_LAMBDA { return in.template run<at_first, formula>(i, ready.chunk[i]); });
            return conclude(in, a, wrapper);
        }
    } else {
        auto a = in.run_all([&](auto i) ORVANE_LAMBDA { return in.template run<at_first, formula>(i); });
        return conclude(in, a, wrapper);
    }
}

// One export: its kernel instance, and its wrapper.
#define ORVANE_ENTRY(symbol, K, W, wrapper)                                                                          \
    extern "C" [[gnu::visibility("default"), gnu::used]] ::orvane::entry_result<K::signature, W> symbol(             \
        uint64_t i0, uint64_t i1, ::orvane::first_vector<K::signature, W> v0, __m256 v1, __m256 v2, __m256 v3) {     \
        return ::orvane::enter<K, W>(wrapper, i0, i1, v0, v1, v2, v3);                                               \
    }
#define ORVANE_WRAPPER(symbol, K, W)                                                                                 \
    extern "C" [[gnu::visibility("hidden"), gnu::noipa]] void symbol(                                                \
        ::orvane::callout_pointer<K, 0> a, ::orvane::callout_pointer<K, 1> b, ::orvane::callout_pointer<K, 2> c,     \
        ::orvane::callout_pointer<K, 3> d, ::orvane::callout_mask<K, W> mask) {                                      \
        ::orvane::walk_special_lanes<K, W>(a, b, c, d, mask);                                                        \
    }
#define ORVANE_CALLOUT_INSTANCE(family, W, tier, K)                                                                  \
    ORVANE_WRAPPER(__orvane_l9_##family##W##tier##_cout_wrapper, K, W)                                               \
    ORVANE_ENTRY(__orvane_l9_##family##W##tier, K, W, &__orvane_l9_##family##W##tier##_cout_wrapper)
#define ORVANE_SETTLED_INSTANCE(family, W, tier, K)                                                                  \
    ORVANE_ENTRY(__orvane_l9_##family##W##tier, K, W, (void (*)()) nullptr)
#define ORVANE_AT_ALL_WIDTHS(INSTANCE, family, tier, ...)                                                            \
    INSTANCE(family, 1, tier, __VA_ARGS__)                                                                           \
    INSTANCE(family, 2, tier, __VA_ARGS__)                                                                           \
    INSTANCE(family, 3, tier, __VA_ARGS__)                                                                           \
    INSTANCE(family, 4, tier, __VA_ARGS__)                                                                           \
    INSTANCE(family, 8, tier, __VA_ARGS__)                                                                           \
    INSTANCE(family, 16, tier, __VA_ARGS__)

// The lines that export a family's tier at all six widths; `tier` is the suffix, empty for the default one.
// A kernel that can have special lanes, and one that finishes every lane itself:
#define ORVANE_EXPORT(family, tier, ...) ORVANE_AT_ALL_WIDTHS(ORVANE_CALLOUT_INSTANCE, family, tier, __VA_ARGS__)
#define ORVANE_EXPORT_SETTLED(family, tier, ...)                                                                     \
    ORVANE_AT_ALL_WIDTHS(ORVANE_SETTLED_INSTANCE, family, tier, __VA_ARGS__)

// Tiers that are one kernel: the same functions under further names, wrappers included.
#define ORVANE_ALIAS(visible, symbol, of)                                                                            \
    extern "C" [[gnu::visibility(visible), gnu::alias(#of)]] decltype(of) symbol;
#define ORVANE_SETTLED_TWIN_INSTANCE(family, W, tier, of_family, of_tier)                                            \
    ORVANE_ALIAS("default", __orvane_l9_##family##W##tier, __orvane_l9_##of_family##W##of_tier)
#define ORVANE_TWIN_INSTANCE(family, W, tier, of_family, of_tier)                                                    \
    ORVANE_SETTLED_TWIN_INSTANCE(family, W, tier, of_family, of_tier)                                                \
    ORVANE_ALIAS("hidden", __orvane_l9_##family##W##tier##_cout_wrapper,                                             \
                 __orvane_l9_##of_family##W##of_tier##_cout_wrapper)
#define ORVANE_TWIN(family, tier, of_family, of_tier)                                                                \
    ORVANE_AT_ALL_WIDTHS(ORVANE_TWIN_INSTANCE, family, tier, of_family, of_tier)
#define ORVANE_TWIN_SETTLED(family, tier, of_family, of_tier)                                                        \
    ORVANE_AT_ALL_WIDTHS(ORVANE_SETTLED_TWIN_INSTANCE, family, tier, of_family, of_tier)

} // namespace orvane
