// The special-lane callout: spill arrays, the mask, and the wrapper that walks it.
//
// Slow paths are scalar code without AVX. A wrapper clears the upper vector state before each of them, and since that
// destroys the upper halves of vector registers 8 to 15, which a register-form call keeps, it saves these eight whole
// around its calls; the ordinary path pays nothing for them.
#pragma once

#include "calling.h"

namespace orvane {

struct no_pointer {};
struct no_mask {};

// The pointer types of a slow path, read off its own declaration; an empty type, which takes no register, stands for
// those that it does not have.
template <class F> struct slow_path_type;
template <class... P> struct slow_path_type<int(P...)> {
    static constexpr int count = sizeof...(P);
    template <int I> static auto pointer() {
        if constexpr (I < count) return std::tuple_element_t<I, std::tuple<P...>>{};
        else return no_pointer{};
    }
};
template <class K> using slow_path_of = slow_path_type<std::remove_reference_t<decltype(K::slow_path)>>;
template <class K, int I> using callout_pointer = decltype(slow_path_of<K>::template pointer<I>());

// A family without a vector formula hands every lane over.
template <class K>
concept calls_for_all_lanes = requires {
    requires K::all_lanes;
};
template <class K, int W> using callout_mask =
    std::conditional_t<W == 1 || calls_for_all_lanes<K>, no_mask, uint32_t>;

// Vector registers 8 to 15, all 256 bits. The compiler leaves them alone in these objects (-ffixed-xmm8 to 15), so
// they are as the caller left them.
struct preserved_registers {
    unsigned char bytes[8 * 32];
    ORVANE_INLINE void save() {
        asm volatile("vmovups %%ymm8, 0(%0)\n\tvmovups %%ymm9, 32(%0)\n\t"
                     "vmovups %%ymm10, 64(%0)\n\tvmovups %%ymm11, 96(%0)\n\t"
                     "vmovups %%ymm12, 128(%0)\n\tvmovups %%ymm13, 160(%0)\n\t"
                     "vmovups %%ymm14, 192(%0)\n\tvmovups %%ymm15, 224(%0)"
                     :
                     : "r"(bytes)
                     : "memory");
    }
    ORVANE_INLINE void restore() const {
        asm volatile("vmovups 0(%0), %%ymm8\n\tvmovups 32(%0), %%ymm9\n\t"
                     "vmovups 64(%0), %%ymm10\n\tvmovups 96(%0), %%ymm11\n\t"
                     "vmovups 128(%0), %%ymm12\n\tvmovups 160(%0), %%ymm13\n\t"
                     "vmovups 192(%0), %%ymm14\n\tvmovups 224(%0), %%ymm15"
                     :
                     : "r"(bytes)
                     : "memory");
    }
};

// The body of a wrapper: calls the slow path once for each marked lane, in ascending order, with pointers to that
// lane in each of the arrays.
template <class K, int W, class A, class B, class C, class D, class M>
ORVANE_INLINE void walk_special_lanes(A a, B b, C c, D d, M mask) {
    constexpr bool in_memory = layout<typename K::signature, W>::in_memory;
    auto call = [&](int i) ORVANE_LAMBDA {
        if constexpr (!in_memory) clear_upper_state();
        if constexpr (slow_path_of<K>::count == 2) K::slow_path(a + i, b + i);
        else if constexpr (slow_path_of<K>::count == 3) K::slow_path(a + i, b + i, c + i);
        else K::slow_path(a + i, b + i, c + i, d + i);
    };
    preserved_registers kept;
    if constexpr (!in_memory) kept.save();
    if constexpr (calls_for_all_lanes<K>) {
        for (int i = 0; i < stored(W); i++)
            call(i);
    } else if constexpr (W == 1) call(0);
    else
        for (; mask; mask &= mask - 1)
            call(__builtin_ctz(mask));
    if constexpr (!in_memory) kept.restore();
}

// The two integer argument registers, which a register-form call keeps. The compiler never uses them by itself
// (-ffixed-rdi, -ffixed-rsi), so only the arguments of the wrapper change them.
struct argument_registers {
    uint64_t rdi, rsi;
    ORVANE_INLINE void save() { asm volatile("mov %%rdi, %0\n\tmov %%rsi, %1" : "=m"(rdi), "=m"(rsi) : : "memory"); }
    ORVANE_INLINE void restore() const {
        asm volatile("mov %0, %%rdi\n\tmov %1, %%rsi" : : "m"(rdi), "m"(rsi) : "memory");
    }
};

// Where results go that do not travel in registers: the result object of the memory form, and the out-pointer.
struct objects {
    void *result, *out;
};

// Spills the lanes to their arrays, calls the wrapper and reloads the results. A lane that was not marked keeps the
// vector path's value. The pointers come back out of the saved registers, so that they need not outlive the call
// elsewhere.
template <class K, int W, class Arguments, class R, size_t N, class Wrapper> ORVANE_INLINE void
call_out(const Arguments& arguments_of, R (&r)[N], unsigned mask, Wrapper* wrapper, objects& pointers_in) {
    using S = typename K::signature;
    using L = layout<S, W>;
    constexpr int C = L::chunk, arguments = S::arguments::count;
    constexpr int results = std::tuple_size_v<R>;

    constexpr int pointers = slow_path_of<K>::count;
    static_assert(pointers == arguments + results, "a slow path takes its arguments and its results by pointers");
    static_assert(!std::is_same_v<Wrapper, void()>, "a kernel with special lanes is exported by ORVANE_EXPORT");
    // One array per argument and one per result, each aligned to 64 bytes. An int array has 4-byte lanes.
    alignas(64) unsigned char array[pointers][(L::widest * stored(W) + 63) / 64 * 64];

    each<L::chunks>([&](auto i) ORVANE_LAMBDA {
        const auto x = arguments_of(i);
        each<arguments>([&](auto j) ORVANE_LAMBDA {
            using T = typename S::arguments::template at<j>;
            static_assert(std::is_same_v<callout_pointer<K, j>, const T*>, "the slow path reads another type");
            store_lanes<T, C>((T*)array[j] + C * i, std::get<j>(x));
        });
        if constexpr (!calls_for_all_lanes<K>)
            each<results>([&](auto j) ORVANE_LAMBDA {
                auto y = std::get<j>(r[i]);
                using T = typename decltype(y)::element;
                store_lanes<T, C>((T*)array[arguments + j] + C * i, y);
            });
    });

    argument_registers kept;
    kept.save();
    if constexpr (L::in_memory) clear_upper_state();
    auto pointer = [&](auto j) ORVANE_LAMBDA {
        if constexpr (j < pointers) return (callout_pointer<K, j>)array[j];
        else return no_pointer{};
    };
    using index = std::make_integer_sequence<int, 4>;
    [&]<int... J>(std::integer_sequence<int, J...>) ORVANE_LAMBDA {
        if constexpr (std::is_same_v<callout_mask<K, W>, no_mask>)
            wrapper(pointer(std::integral_constant<int, J>{})..., no_mask{});
        else wrapper(pointer(std::integral_constant<int, J>{})..., mask);
    }
    (index{});
    if constexpr (L::in_memory) pointers_in = {(void*)kept.rdi, (void*)kept.rsi};
    else {
        kept.restore();
        if constexpr (S::has_out) pointers_in.out = (void*)kept.rdi;
    }

    each<L::chunks>([&](auto i) ORVANE_LAMBDA {
        each<results>([&](auto j) ORVANE_LAMBDA {
            using V = std::tuple_element_t<j, R>;
            using T = typename V::element;
            static_assert(std::is_same_v<callout_pointer<K, arguments + j>, T*>, "the slow path stores another type");
            std::get<j>(r[i]) = load_lanes<T, C>((T*)array[arguments + j] + C * i);
        });
    });
}

} // namespace orvane
