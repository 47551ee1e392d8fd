// Constant blocks: read-only objects of 64-byte slots that kernels read by name.
//
// A block is a struct whose members are declared by SLOT, ENTRIES, TABLE and GAP, each with the slot number it must
// have; the compiler refuses a block in which a member lies elsewhere. A member stands for a lane vector of any
// width: a replicated constant is one load at any width, since the slot holds it in every lane.
#pragma once

#include "lanes.h"

#include <cstddef>

namespace orvane {

inline constexpr int slot_bytes = 64;

// A value of type T from its bit pattern.
template <class T> constexpr T from_bits(uint_of<T> pattern) { return std::bit_cast<T>(pattern); }

// Not constant, so that a block with such an entry does not compile.
void entry_has_more_bits_than_the_slots_type();

// One cell of E entries repeated over it; E = 1 is a replicated constant. Entries are bit patterns.
template <class T, int E> struct alignas(slot_bytes) slot {
    static constexpr int count = slot_bytes / sizeof(T);
    T lane[count];

    template <class... B> consteval slot(B... patterns) {
        static_assert(sizeof...(B) == E && count % E == 0);
        static_assert((std::is_integral_v<B> && ...), "entries are bit patterns, not values");
        ((B(uint_of<T>(patterns)) == patterns || B(int_of<T>(patterns)) == patterns
              ? void()
              : entry_has_more_bits_than_the_slots_type()),
         ...);
        const uint_of<T> entries[] = {uint_of<T>(patterns)...};
        for (int i = 0; i < count; i++)
            lane[i] = from_bits<T>(entries[i % E]);
    }

    // Any lane vector of this lane size: the value itself or its bits as an integer.
    template <class U, int W>
    requires(sizeof(U) == sizeof(T)) ORVANE_INLINE operator lanes<U, W>() const {
        return *(const typename lanes<U, W>::raw*)lane;
    }
};

// In-register lookup: entry (index mod E) of a table of E entries that repeats over its slot. The control is the
// lane's own low bits; what stands above them is not looked at, so a sum's pattern may be used as it is.
template <class T, int E, class I, int W>
ORVANE_INLINE lanes<T, W> permute(const slot<T, E>& table, lanes<I, W> index) {
    using V = lanes<T, W>;
    using raw = typename V::raw;
    static_assert(sizeof(I) == sizeof(T));
    if constexpr (sizeof(T) == 4 && E <= 4) {
        static_assert(E == 4);
        if constexpr (V::is_wide) return (raw)_mm256_permutevar_ps((__m256)V(table).v, (__m256i)index.v);
        else return (raw)_mm_permutevar_ps((__m128)V(table).v, (__m128i)index.v);
    } else if constexpr (sizeof(T) == 4) {
        static_assert(E == 8, "a register holds eight 32-bit entries");
        const __m256 entries = (__m256)lanes<T, 8>(table).v;
        if constexpr (V::is_wide) return (raw)_mm256_permutevar8x32_ps(entries, (__m256i)index.v);
        else
            return (raw)_mm256_castps256_ps128(
                _mm256_permutevar8x32_ps(entries, _mm256_castsi128_si256((__m128i)index.v)));
    } else {
        static_assert(E == 2, "the 64-bit permute works within 128 bits");
        const auto control = (index + index).v; // it looks at bit 1
        if constexpr (V::is_wide) return (raw)_mm256_permutevar_pd((__m256d)V(table).v, (__m256i)control);
        else return (raw)_mm_permutevar_pd((__m128d)V(table).v, (__m128i)control);
    }
}

// The slots between two numbers that nothing reads.
template <int First, int Last> struct alignas(slot_bytes) gap {
    unsigned char unread[(Last - First + 1) * slot_bytes] = {};
};

// How far into a block its register points: two slots, so that the first four are a byte's displacement away; a table
// that the block begins with is indexed from its start.
template <class B> constexpr int reading_point() {
    constexpr bool begins_with_table = requires { B::table_at(std::integral_constant<int, 0>()); };
    return begins_with_table || sizeof(B) <= 2 * slot_bytes ? 0 : 2 * slot_bytes;
}

#define ORVANE_PLACED(byte_offset, name)                                                                             \
    void name##_is_in_place() const {                                                                                \
        static_assert(offsetof(std::remove_cvref_t<decltype(*this)>, name) == (byte_offset));                        \
    }

// A constant replicated over slot `number`, from its bits.
#define SLOT(T, number, name, ...)                                                                                   \
    ::orvane::slot<T, 1> name{__VA_ARGS__};                                                                          \
    ORVANE_PLACED(64 * (number), name)

// A table of `entries` values repeated over slot `number`, indexed by an in-register permute.
#define ENTRIES(T, number, entries, name, ...)                                                                       \
    ::orvane::slot<T, entries> name{__VA_ARGS__};                                                                    \
    ORVANE_PLACED(64 * (number), name)

// A table in memory, from slot `number` on: a copy of a constexpr object, which may serve other blocks too. table_at
// has no body: reading_point() asks whether a block declares it for offset 0.
#define TABLE(number, name, ...)                                                                                     \
    alignas(::orvane::slot_bytes) std::remove_const_t<decltype(__VA_ARGS__)> name = __VA_ARGS__;                     \
    static void table_at(std::integral_constant<int, 64 * (number)>);                                                \
    ORVANE_PLACED(64 * (number), name)

// Slots first to last, which nothing reads.
#define GAP(first, last) ::orvane::gap<first, last> unread_from_##first;

// A block's object under its name in the symbol table, and other names of the same bytes.
#define ORVANE_BLOCK(type, name)                                                                                     \
    extern "C" [[gnu::visibility("hidden")]] const type name;                                                        \
    constexpr type name{};
#define ORVANE_BLOCK_TWIN(name, of) extern "C" [[gnu::visibility("hidden"), gnu::alias(#of)]] const decltype(of) name;

} // namespace orvane
