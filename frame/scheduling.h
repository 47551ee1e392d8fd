// What the compiler may see of a kernel, and in what order it has to do things. Every function here costs nothing by
// itself: each is an empty asm that takes a value as it stands.
#pragma once

// A kernel is one function: the skeleton, the formula and its operations are inlined into every export. Lambdas take
// the attribute behind their parameters.
#define ORVANE_INLINE __attribute__((always_inline)) inline
#define ORVANE_LAMBDA __attribute__((always_inline))

namespace orvane {

namespace detail {
// A value in a vector register, whose origin the compiler no longer knows. Without it a comparison of integers whose
// result is ORed with another becomes a blend, and elements of a register are read back from a copy in memory.
template <class R> ORVANE_INLINE R in_register(R r) {
    asm("" : "+x"(r));
    return r;
}
} // namespace detail

// A lane vector whose steps end here. Without it the compiler moves them down to where the value is used, past the
// steps of other chunks; both are then under way at once and eight registers do not hold them, so that the ordinary
// path gets a frame and spills.
template <class V> ORVANE_INLINE V finished(V a) {
    a.v = detail::in_register(a.v);
    return a;
}

// What is done with `later` from here on comes after all that gives `done`. Without it the compiler starts two
// independent chains side by side wherever the source has them side by side, and needs registers for both.
template <class A, class B> ORVANE_INLINE void in_turn(A& done, B& later) { asm("" : "+x"(done.v), "+x"(later.v)); }

// How far into a block its register points (slots.h).
template <class B> constexpr int reading_point();

// The constant block behind a pointer, to be read from now on by its address in a register. Without it the compiler,
// which knows the block's content, reads constants from a pool of its own; and it keeps (and spills) constants from
// one part of a kernel to the next, where they are memory operands after each call of this.
template <class B> ORVANE_INLINE const B& anew(const B*& block) {
    const char* at = (const char*)block + reading_point<B>();
    asm("" : "+r"(at));
    block = (const B*)(at - reading_point<B>());
    return *block;
}

} // namespace orvane
