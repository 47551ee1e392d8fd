// The passes as plain functions of IR, for either pass manager. Each returns whether it changed something.
//
// Before the vectorizer a call of an export that LLVM cannot widen by itself becomes one or two calls of pure
// functions on lanes, which stand for parts of it; after the vectorizer such a call, scalar or wide, becomes what it
// stands for:
//
//     f.first, f.second   the two results of an export f that gives two (sincos, modf, idivrem ...)
//     f.lanes             an export f of a width at which it is not called with vectors alone
#pragma once

#include "exports_ir.h"

#include <llvm/Analysis/LoopInfo.h>
#include <llvm/Analysis/OptimizationRemarkEmitter.h>
#include <llvm/IR/Dominators.h>

namespace orvane::ir {

struct step_options {
    unsigned width = 0;          // lanes of a work-item loop; 0: LLVM's choice, and 8 in lane loops
    bool exact_clobbers = false; // wide calls as inline assembly that names what they change
};

// ---- Before the vectorizer

// Integer divisions and remainders that are no constant's become calls that never trap; 64-bit ones are guarded.
bool divisions_to_calls(llvm::Function&);
// Calls of exports with two results become calls of their parts.
bool results_to_parts(llvm::Function&);
// In loops over work-items: vectors of up to four lanes, and calls on them, become scalars, which widen.
bool vectors_to_scalars(llvm::Function&);
// Behind the scalarizer: lanes of small integers that share a number.
bool packed_lanes_to_scalars(llvm::Function&);
// A loop over work-items that LLVM's vectorizer would leave alone, since it has loops of its own or arrays private to
// a work-item, becomes one over groups of work-items, with an innermost loop over lanes at every step.
bool loops_to_lane_loops(llvm::Function&, const step_options&, llvm::OptimizationRemarkEmitter&);
// Whether a loop over work-items branches by a switch, which the vectorizer does not take.
bool has_switches(llvm::Function&);
// Declares the wide forms of the scalar calls of a function and keeps them for the vectorizer.
bool declare_wide_calls(llvm::Function&);

// ---- After it

// Parts become calls of exports again, the two of one export one call; scalar integer divisions become instructions.
bool parts_to_calls(llvm::Function&, llvm::OptimizationRemarkEmitter&);
// Wide calls take the registers of the convention where the target has wider ones, or become inline assembly.
bool settle_registers(llvm::Function&, const step_options&);
// What the vectorizer made of the calls, as remarks.
void tell_calls(llvm::Function&, llvm::OptimizationRemarkEmitter&);
// Declarations that nothing uses go.
bool drop_unused_declarations(llvm::Module&);

// ---- Between them

enum class part { whole, first, second, lanes };
struct call_id {
    export_id of;
    part which = part::whole;
};
// What a call stands for; none if it is not the library's.
call_id find_call(const llvm::CallInst&);
// The declaration of a part.
llvm::Function* declare_part(llvm::Module&, const kernel_row&, int width, part);
// A loop that runs over work-items: its iterations are independent.
bool over_work_items(const llvm::Loop&);

} // namespace orvane::ir
