// Loops over work-items that hold loops of their own, made wide.
//
// LLVM vectorizes innermost loops. So a loop over work-items i that is not one becomes a loop over groups of W
// work-items, and its body is cut into segments: stretches without a loop. Each segment gets an innermost loop over
// the lanes of a group, which LLVM then takes whole:
//
//     for i: a; do { b } while (c); d    ->    for groups: for lanes: a
//                                              do { for lanes: b } while (c)
//                                              for lanes: d
//
// A value that passes from one segment to another lives in an array of W elements, of which nothing but a vector
// register is left in the end; a value that is the same for all lanes, such as the counter of the loop, stays a
// scalar between the lane loops. Where lanes part (an if around a loop, a loop that some lanes leave earlier) every
// lane has the number of the block where it goes on: a segment lets the lanes in that stand at its door, and a loop
// whose trip count differs from lane to lane runs as long as any lane stands at its head. The last work-items, fewer
// than W, run in the loop as it was.
#include "compat.h"
#include "steps.h"

#include <llvm/ADT/MapVector.h>
#include <llvm/ADT/SetVector.h>
#include <llvm/Analysis/AssumptionCache.h>
#include <llvm/Analysis/ScalarEvolution.h>
#include <llvm/Analysis/ScalarEvolutionExpressions.h>
#include <llvm/Analysis/TargetLibraryInfo.h>
#include <llvm/Analysis/ValueTracking.h>
#include <llvm/Analysis/VectorUtils.h>
#include <llvm/IR/InstIterator.h>
#include <llvm/IR/IntrinsicInst.h>
#include <llvm/Transforms/Utils/Cloning.h>
#include <llvm/Transforms/Utils/Local.h>
#include <llvm/Transforms/Utils/LoopSimplify.h>
#include <llvm/Transforms/Utils/LoopUtils.h>
#include <llvm/Transforms/Utils/PromoteMemToReg.h>
#include <llvm/Transforms/Utils/ScalarEvolutionExpander.h>

#include <map>
#include <set>

using namespace llvm;

namespace orvane::ir {

namespace {

using targets = SetVector<BasicBlock*>;

struct segment {
    SmallVector<BasicBlock*, 8> blocks;    // in topological order
    SmallVector<Instruction*, 16> scalars; // but for phis, which loops carry
    bool holds_latch = false;
};

// A loop's body, or the whole region, as segments and loops in topological order.
struct item {
    segment* straight = nullptr;
    Loop* loop = nullptr;
};

// What is known of the lanes of a group at a point of the code: where they may stand, and whether some may be
// elsewhere.
struct standing {
    targets at;
    bool masked;
};

constexpr const char* lanes_mark = "orvane.lanes"; // on a loop over lanes

class lane_loop_maker {
public:
    lane_loop_maker(Function& f, Loop& outer, unsigned lanes, ScalarEvolution& evolution)
        : f(f), c(f.getContext()), outer(outer), lanes(lanes), evolution(evolution) {}

    // Why the loop cannot be made wide; empty if it can.
    std::string refusal();
    void run();

private:
    Function& f;
    LLVMContext& c;
    Loop& outer;
    const unsigned lanes;
    ScalarEvolution& evolution;
    Type* const word = Type::getInt64Ty(c);

    // Values that a formula gives for each lane: induction variables (start of the group, step) and arrays private to
    // a work-item (array of all lanes' copies).
    struct own_value {
        Value* of_group;
        Value* step;
        AllocaInst* array;
    };
    MapVector<Value*, own_value> own_values;
    SmallVector<AllocaInst*, 4> arrays;
    SmallVector<BasicBlock*, 32> region;
    BasicBlock* region_end = nullptr;

    std::map<BasicBlock*, segment*> segment_of;
    std::vector<std::unique_ptr<segment>> segments;
    std::map<Loop*, std::vector<item>> items;
    // What must be known of an inner loop before its edges are cut.
    struct facts {
        BasicBlock* from_latch = nullptr; // the block that its phis name for the way back
        WeakTrackingVH condition;         // of a plain loop: all lanes that enter go round equally often
        bool back_if_true = false;
        SmallVector<BasicBlock*, 4> exits;
    };
    std::map<Loop*, facts> facts_of;
    std::set<Value*> scalars;
    std::map<BasicBlock*, unsigned> numbers;
    MapVector<AllocaInst*, AllocaInst*> variables;     // one lane's variable -> the array of all lanes
    std::map<AllocaInst*, std::set<segment*>> readers; // segments that read a variable
    SmallVector<AllocaInst*, 32> temporaries;
    AllocaInst* place = nullptr; // where a lane goes on
    BasicBlock* spine = nullptr; // where the code between lane loops grows
    MDNode *group = nullptr, *accesses = nullptr;

    unsigned number_of(BasicBlock* b) { return numbers.emplace(b, numbers.size()).first->second; }
    AllocaInst* in_entry(Type* t, const Twine& name) {
        BasicBlock& entry = f.getEntryBlock();
        return IRBuilder<>(&entry, entry.begin()).CreateAlloca(t, nullptr, name);
    }
    AllocaInst* new_variable(Type* t, const Twine& name) {
        AllocaInst* v = in_entry(t, name);
        AllocaInst* array = in_entry(ArrayType::get(t, lanes), name + ".lanes");
        array->setAlignment(Align(32));
        variables[v] = array;
        return v;
    }
    bool in_region(const BasicBlock* b) const { return segment_of.count(const_cast<BasicBlock*>(b)); }

    void clone_and_group();
    void arrange(Loop* loop, BasicBlock* first, LoopInfo&);
    void find_scalars(LoopInfo&);
    void find_loops();
    void demote_phis();
    void demote_values();
    void find_readers();
    void emit(Loop*, standing&);
    void emit_segment(Loop*, segment&, standing&);
    void emit_loop(Loop&, standing&);
    Value* any_at(IRBuilder<>&, BasicBlock*);
    void take_whole(BasicBlock* latch_of_lanes);
};

bool is_private_array(const Value* v, const Loop& loop) {
    auto* a = dyn_cast<AllocaInst>(v);
    if (!a || !a->isStaticAlloca()) return false;
    return all_of(a->users(), [&](const User* u) {
        auto* i = dyn_cast<Instruction>(u);
        return i && (loop.contains(i) || i->isLifetimeStartOrEnd());
    });
}

bool touches_memory(const Instruction& i) {
    if (auto* call = dyn_cast<CallInst>(&i))
        if (call->isLifetimeStartOrEnd() || isa<AssumeInst>(call) || isa<DbgInfoIntrinsic>(call) ||
            call->getIntrinsicID() == Intrinsic::experimental_noalias_scope_decl)
            return false;
    return i.mayReadOrWriteMemory();
}

bool has_private_arrays(const Loop& loop) {
    for (BasicBlock* b : loop.blocks())
        for (Instruction& i : *b)
            if (touches_memory(i))
                if (const Value* p = getLoadStorePointerOperand(&i))
                    if (is_private_array(getUnderlyingObject(p), loop)) return true;
    return false;
}

// Addresses within such arrays that were computed once, in front of the loop, go back to where they are used.
bool sink_addresses(Function& f, const Loop& loop) {
    bool changed = false;
    for (bool again = true; again; changed |= again) {
        again = false;
        for (Instruction& i : make_early_inc_range(instructions(f))) {
            auto* address = dyn_cast<GetElementPtrInst>(&i);
            if (!address || loop.contains(address) || !address->hasAllConstantIndices() ||
                !isa<AllocaInst>(getUnderlyingObject(address)))
                continue;
            for (Use& u : make_early_inc_range(address->uses())) {
                auto* user = cast<Instruction>(u.getUser());
                if (!loop.contains(user)) continue;
                auto* phi = dyn_cast<PHINode>(user);
                Instruction* copy = address->clone();
                copy->insertBefore(phi ? phi->getIncomingBlock(u)->getTerminator() : user);
                u.set(copy);
                again = true;
            }
            if (address->use_empty()) address->eraseFromParent();
        }
    }
    return changed;
}

std::set<const MDNode*> groups_of(const MDNode* n) {
    std::set<const MDNode*> all;
    if (!n) return all;
    if (n->getNumOperands() == 0) all.insert(n);
    else
        for (const auto& o : n->operands())
            all.insert(cast<MDNode>(o.get()));
    return all;
}

std::string lane_loop_maker::refusal() {
    if (!outer.isLoopSimplifyForm()) return "its loop over work-items has not the simple form";
    if (outer.getExitingBlock() != outer.getLoopLatch() || !outer.getExitBlock())
        return "its loop over work-items has more than one exit";
    const SCEV* count = evolution.getBackedgeTakenCount(&outer);
    if (isa<SCEVCouldNotCompute>(count) || !count->getType()->isIntegerTy())
        return "the number of work-items is not known before the loop";
    for (PHINode& phi : outer.getHeader()->phis()) {
        if (!phi.getType()->isIntegerTy()) return "its loop over work-items carries a value from one to the next";
        auto* r = dyn_cast<SCEVAddRecExpr>(evolution.getSCEV(&phi));
        if (!r || r->getLoop() != &outer || !r->isAffine())
            return "its loop over work-items carries a value from one to the next";
    }
    std::set<const MDNode*> parallel;
    const MDNode* named = findOptionMDForLoop(&outer, "llvm.loop.parallel_accesses");
    for (unsigned k = 1; k < named->getNumOperands(); k++)
        parallel.insert(cast<MDNode>(named->getOperand(k).get()));
    for (BasicBlock* b : outer.blocks()) {
        if (!isa<BranchInst>(b->getTerminator())) return "it has a switch";
        for (Instruction& i : *b) {
            for (const User* u : i.users())
                if (auto* user = dyn_cast<Instruction>(u); user && !outer.contains(user))
                    return "a value of the loop over work-items is used after it";
            if (i.getType()->isVectorTy() ||
                any_of(i.operand_values(), [](Value* v) { return v->getType()->isVectorTy(); }))
                return "it works on vectors of more than four lanes, which are wide by themselves";
            if (isa<AllocaInst>(i)) return "it allocates memory in the loop over work-items";
            auto* call = dyn_cast<CallBase>(&i);
            if (call && call->isConvergent())
                return "it holds a barrier or another call that all work-items make at once";
            if (!touches_memory(i)) continue;
            const auto groups = groups_of(i.getMetadata(LLVMContext::MD_access_group));
            const bool independent = any_of(groups, [&](const MDNode* g) { return parallel.count(g); });
            const Value* p = getLoadStorePointerOperand(&i);
            if (!independent && !(p && is_private_array(getUnderlyingObject(p), outer)))
                return "work-items may depend on each other through memory";
        }
    }
    return "";
}

// Puts a loop over groups in front of the loop and clones the body into it.
void lane_loop_maker::clone_and_group() {
    BasicBlock *before = outer.getLoopPreheader(), *header = outer.getHeader(), *latch = outer.getLoopLatch(),
               *after = outer.getExitBlock();
    IRBuilder<> code(before->getTerminator());
    SCEVExpander expander(evolution, f.getParent()->getDataLayout(), "orvane");
    auto expanded = [&](const SCEV* s, Type* t) { return expander.expandCodeFor(s, t, before->getTerminator()); };
    Value* count = expanded(evolution.getBackedgeTakenCount(&outer), nullptr);
    count = code.CreateAdd(code.CreateZExtOrTrunc(count, word), ConstantInt::get(word, 1), "work_items");
    Value* groups = code.CreateUDiv(count, ConstantInt::get(word, lanes), "groups");
    Value* in_groups = code.CreateMul(groups, ConstantInt::get(word, lanes));

    auto* head = BasicBlock::Create(c, "group", &f, header);
    region_end = BasicBlock::Create(c, "group.end", &f, header);
    auto* groups_done = BasicBlock::Create(c, "groups.done", &f, header);
    auto* rest = BasicBlock::Create(c, "rest", &f, header);
    IRBuilder<> at_head(head), at_rest(rest);
    PHINode* n = at_head.CreatePHI(word, 2, "group.number");
    n->addIncoming(ConstantInt::get(word, 0), before);
    Value* first = at_head.CreateMul(n, ConstantInt::get(word, lanes), "group.first");

    ValueToValueMapTy map;
    for (PHINode& phi : header->phis()) {
        auto* r = cast<SCEVAddRecExpr>(evolution.getSCEV(&phi));
        Type* const t = phi.getType();
        Value* start = phi.getIncomingValueForBlock(before);
        Value* step = expanded(r->getStepRecurrence(evolution), t);
        auto moved = [&](IRBuilder<>& b, Value* by) {
            return b.CreateAdd(start, b.CreateMul(b.CreateZExtOrTrunc(by, t), step));
        };
        Value* skipped = moved(code, in_groups);
        PHINode* from = at_rest.CreatePHI(t, 2);
        from->addIncoming(start, before);
        from->addIncoming(skipped, groups_done);
        phi.setIncomingValueForBlock(before, from);
        // Stands for the lane's value until each segment has its own.
        auto* stand_in = new FreezeInst(PoisonValue::get(t), phi.getName() + ".lane", region_end);
        map[&phi] = stand_in;
        own_values[stand_in] = {moved(at_head, first), step, nullptr};
    }
    at_rest.CreateBr(header);
    header->replacePhiUsesWith(before, rest);
    for (PHINode& phi : after->phis())
        phi.addIncoming(phi.getIncomingValueForBlock(latch), groups_done);

    std::set<AllocaInst*> privates;
    for (BasicBlock* b : outer.blocks())
        for (Instruction& i : *b)
            for (Value* v : i.operand_values())
                if (is_private_array(v, outer)) privates.insert(cast<AllocaInst>(v));
    for (AllocaInst* a : privates) {
        AllocaInst* array = in_entry(ArrayType::get(a->getAllocatedType(), lanes), a->getName() + ".lanes");
        array->setAlignment(std::max(a->getAlign(), Align(32)));
        auto* stand_in = new FreezeInst(PoisonValue::get(a->getType()), a->getName() + ".lane", region_end);
        map[a] = stand_in;
        own_values[stand_in] = {nullptr, nullptr, array};
        arrays.push_back(a);
    }

    for (BasicBlock* b : outer.blocks()) {
        BasicBlock* copy = CloneBasicBlock(b, map, ".wide", &f);
        map[b] = copy;
        region.push_back(copy);
    }
    auto* wide_header = cast<BasicBlock>(map[header]);
    for (PHINode& phi : make_early_inc_range(wide_header->phis()))
        phi.eraseFromParent();
    // CloneBasicBlock put the copies of the header's phis into the map.
    size_t k = 0;
    for (PHINode& phi : header->phis())
        map[&phi] = (own_values.begin() + k++)->first;
    remapInstructionsInBlocks(region, map);
    for (BasicBlock* b : region)
        for (Instruction& i : make_early_inc_range(*b)) {
            auto* call = dyn_cast<CallInst>(&i);
            if (call && call->getType()->isVoidTy() && !touches_memory(i)) call->eraseFromParent();
        }
    auto* wide_latch = cast<BasicBlock>(map[latch]);
    wide_latch->getTerminator()->eraseFromParent();
    BranchInst::Create(region_end, wide_latch);

    at_head.CreateBr(wide_header);
    IRBuilder<> at_end(region_end);
    Value* next = at_end.CreateAdd(n, ConstantInt::get(word, 1));
    n->addIncoming(next, region_end);
    BranchInst* back = at_end.CreateCondBr(at_end.CreateICmpULT(next, groups), head, groups_done);
    MDNode* id = MDNode::getDistinct(c, {nullptr, MDNode::get(c, {MDString::get(c, "llvm.loop.unroll.disable")})});
    id->replaceOperandWith(0, id);
    back->setMetadata(LLVMContext::MD_loop, id);
    IRBuilder<> at_done(groups_done);
    at_done.CreateCondBr(at_done.CreateICmpULT(in_groups, count), rest, after);
    code.CreateCondBr(code.CreateICmpEQ(groups, ConstantInt::get(word, 0)), rest, head);
    before->getTerminator()->eraseFromParent();
    spine = head;
    // The copy of the header is where all lanes begin.
    std::iter_swap(region.begin(), std::find(region.begin(), region.end(), wide_header));
}

// Segments and loops of one loop's body in topological order: depth first over a graph in which each inner loop is
// one node.
void lane_loop_maker::arrange(Loop* loop, BasicBlock* first, LoopInfo& loops) {
    auto node_of =
        [&](BasicBlock* b) -> Loop* { // the loop one level below that holds the block; null: the block itself
        Loop* l = loops.getLoopFor(b);
        if (l == loop) return nullptr;
        while (l && l->getParentLoop() != loop)
            l = l->getParentLoop();
        return l;
    };
    const std::set<BasicBlock*> inside(region.begin(), region.end());
    std::set<BasicBlock*> seen;
    std::vector<BasicBlock*> order;
    std::function<void(BasicBlock*)> visit = [&](BasicBlock* b) {
        if (!inside.count(b) || (loop && !loop->contains(b)) || !seen.insert(b).second) return;
        SmallVector<BasicBlock*, 8> next;
        if (Loop* inner = node_of(b)) inner->getExitBlocks(next);
        else next.append(succ_begin(b), succ_end(b));
        for (BasicBlock* s : next)
            visit(s);
        order.push_back(b);
    };
    visit(first);
    std::reverse(order.begin(), order.end());

    auto& all = items[loop];
    for (BasicBlock* b : order)
        if (Loop* inner = node_of(b)) all.push_back({nullptr, inner});
        else {
            if (all.empty() || !all.back().straight) {
                segments.push_back(std::make_unique<segment>());
                all.push_back({segments.back().get(), nullptr});
            }
            all.back().straight->blocks.push_back(b);
            all.back().straight->holds_latch |= loop && b == loop->getLoopLatch();
            segment_of[b] = all.back().straight;
        }
    const std::vector<item> done = all;
    for (const item& i : done)
        if (i.loop) arrange(i.loop, i.loop->getHeader(), loops);
}

// A value is a scalar if all lanes that are at work have the same and it can be computed outside the lane loops:
// steps without memory on such values, and what a loop carries of them from one iteration to the next, since lanes go
// through a loop together.
void lane_loop_maker::find_scalars(LoopInfo& loops) {
    auto candidate = [&](Instruction& i) {
        if (isa<PHINode>(i)) return loops.isLoopHeader(i.getParent());
        if (isa<CallBase>(i) || i.isTerminator() || isa<AllocaInst>(i)) return false;
        return !touches_memory(i) && isSafeToSpeculativelyExecute(&i);
    };
    for (BasicBlock* b : region)
        for (Instruction& i : *b)
            if (candidate(i)) scalars.insert(&i);
    auto outside = [&](Value* v) {
        auto* i = dyn_cast<Instruction>(v);
        return (!i || !in_region(i->getParent())) && !own_values.count(v);
    };
    for (bool again = true; again;) {
        again = false;
        for (BasicBlock* b : region)
            for (Instruction& i : *b)
                if (scalars.count(&i) &&
                    !all_of(i.operand_values(), [&](Value* v) { return outside(v) || scalars.count(v); }))
                    again = scalars.erase(&i);
    }
    for (auto& s : segments)
        for (BasicBlock* b : s->blocks)
            for (Instruction& i : *b)
                if (scalars.count(&i) && !isa<PHINode>(i)) s->scalars.push_back(&i);
}

// A loop is plain if it is left at its end alone, by a condition that all lanes share.
void lane_loop_maker::find_loops() {
    for (auto& [loop, unused] : items) {
        facts& is = facts_of[loop];
        if (!in_region(loop->getHeader())) continue;
        loop->getUniqueExitBlocks(is.exits);
        is.from_latch = loop->getLoopLatch();
        auto* branch = dyn_cast<BranchInst>(is.from_latch->getTerminator());
        if (loop->getExitingBlock() != is.from_latch || !branch || !branch->isConditional()) continue;
        auto* i = dyn_cast<Instruction>(branch->getCondition());
        if (i && in_region(i->getParent()) && !scalars.count(i)) continue;
        is.condition = branch->getCondition();
        is.back_if_true = branch->getSuccessor(0) == loop->getHeader();
    }
}

// A phi of a block that lanes enter from another segment becomes a variable, written on the edges.
void lane_loop_maker::demote_phis() {
    SmallVector<PHINode*, 16> phis;
    for (BasicBlock* b : region) {
        bool door = false;
        for (BasicBlock* p : predecessors(b))
            door |= !in_region(p) || segment_of[p] != segment_of[b];
        // A loop's back edge leads to a door even within one segment.
        for (auto& [loop, all] : items)
            door |= loop->getHeader() == b;
        if (!door) continue;
        for (PHINode& phi : b->phis())
            if (!scalars.count(&phi)) phis.push_back(&phi);
    }
    std::map<std::pair<BasicBlock*, BasicBlock*>, BasicBlock*> edges;
    SmallVector<std::pair<PHINode*, AllocaInst*>, 16> made;
    for (PHINode* phi : phis)
        made.push_back({phi, new_variable(phi->getType(), phi->getName() + ".at")});
    for (auto& [phi, variable] : made)
        for (unsigned k = 0; k < phi->getNumIncomingValues(); k++) {
            BasicBlock *from = phi->getIncomingBlock(k), *to = phi->getParent();
            BasicBlock*& edge = edges[{from, to}];
            if (!edge) {
                edge = BasicBlock::Create(c, "edge", &f, to);
                BranchInst::Create(to, edge);
                from->getTerminator()->replaceSuccessorWith(to, edge);
                segment* s = segment_of[from];
                segment_of[edge] = s;
                s->blocks.push_back(edge);
                region.push_back(edge);
            }
        }
    // All values of an edge are read before the first is written: they are values, not variables.
    for (auto& [phi, variable] : made)
        for (unsigned k = 0; k < phi->getNumIncomingValues(); k++)
            new StoreInst(phi->getIncomingValue(k), variable,
                          edges[{phi->getIncomingBlock(k), phi->getParent()}]->getTerminator());
    for (auto& [phi, variable] : made) {
        auto* value = new LoadInst(phi->getType(), variable, phi->getName() + ".now",
                                   &*phi->getParent()->getFirstInsertionPt());
        phi->replaceAllUsesWith(value);
    }
    for (auto& [phi, variable] : made)
        phi->eraseFromParent();
    // Phis that stay, those of scalars, name the blocks that now lie on the edges.
    for (auto& [ends, edge] : edges) {
        for (auto& [loop, is] : facts_of)
            if (loop->getHeader() == ends.second && is.from_latch == ends.first) is.from_latch = edge;
        for (PHINode& phi : ends.second->phis())
            phi.replaceIncomingBlockWith(ends.first, edge);
    }
}

// A value that another segment uses becomes a variable too.
void lane_loop_maker::demote_values() {
    SmallVector<Instruction*, 32> values;
    for (BasicBlock* b : region)
        for (Instruction& i : *b)
            if (!scalars.count(&i)) values.push_back(&i);
    for (Instruction* i : values) {
        SmallVector<Use*, 8> elsewhere;
        for (Use& u : i->uses()) {
            auto* user = cast<Instruction>(u.getUser());
            BasicBlock* at = user->getParent();
            if (auto* phi = dyn_cast<PHINode>(user)) at = phi->getIncomingBlock(u);
            if (in_region(at) && segment_of[at] != segment_of[i->getParent()]) elsewhere.push_back(&u);
        }
        if (elsewhere.empty()) continue;
        AllocaInst* variable = new_variable(i->getType(), i->getName() + ".kept");
        for (Use* u : elsewhere) {
            auto* user = cast<Instruction>(u->getUser());
            Instruction* at = user;
            if (auto* phi = dyn_cast<PHINode>(user)) at = phi->getIncomingBlock(*u)->getTerminator();
            u->set(new LoadInst(i->getType(), variable, i->getName() + ".again", at));
        }
        Instruction* after = isa<PHINode>(i) ? &*i->getParent()->getFirstInsertionPt() : i->getNextNode();
        new StoreInst(i, variable, after);
    }
}

void lane_loop_maker::find_readers() {
    for (auto& s : segments)
        for (BasicBlock* b : s->blocks)
            for (Instruction& i : *b)
                if (auto* load = dyn_cast<LoadInst>(&i))
                    if (auto* a = dyn_cast<AllocaInst>(load->getPointerOperand()); a && variables.count(a))
                        readers[a].insert(s.get());
}

Value* lane_loop_maker::any_at(IRBuilder<>& code, BasicBlock* b) {
    auto* vector = FixedVectorType::get(code.getInt32Ty(), lanes);
    Value* places = code.CreateAlignedLoad(vector, variables[place], Align(32));
    Value* there = code.CreateICmpEQ(places, code.CreateVectorSplat(lanes, code.getInt32(number_of(b))));
    Type* const bits = code.getIntNTy(lanes);
    return code.CreateICmpNE(code.CreateBitCast(there, bits), ConstantInt::get(bits, 0), "any");
}

void lane_loop_maker::take_whole(BasicBlock* latch) {
    auto number = [&](unsigned n) { return ConstantAsMetadata::get(ConstantInt::get(Type::getInt32Ty(c), n)); };
    auto option = [&](StringRef name, Metadata* value) { return MDNode::get(c, {MDString::get(c, name), value}); };
    SmallVector<Metadata*, 6> all{
        nullptr,
        option("llvm.loop.vectorize.enable", ConstantAsMetadata::get(ConstantInt::getTrue(c))),
        option("llvm.loop.vectorize.width", number(lanes)),
        option("llvm.loop.interleave.count", number(1)),
        accesses,
        option(lanes_mark, number(lanes))};
    MDNode* id = MDNode::getDistinct(c, all);
    id->replaceOperandWith(0, id);
    latch->getTerminator()->setMetadata(LLVMContext::MD_loop, id);
}

void lane_loop_maker::emit_segment(Loop* loop, segment& s, standing& lanes_at) {
    targets doors, leaving;
    for (BasicBlock* b : lanes_at.at)
        if (segment_of.count(b) && segment_of[b] == &s) doors.insert(b);
    if (doors.empty()) return; // no lane comes here
    const bool all_enter = !lanes_at.masked && lanes_at.at.size() == 1;
    // At the end of a loop that all go round equally often the way on is decided outside the lanes.
    const bool decided = s.holds_latch && !lanes_at.masked && bool(facts_of[loop].condition);

    struct exit {
        Instruction* branch;
        unsigned way;
        BasicBlock* to;
    };
    SmallVector<exit, 8> exits;
    for (BasicBlock* b : s.blocks)
        for (unsigned k = 0; k < b->getTerminator()->getNumSuccessors(); k++) {
            BasicBlock* to = b->getTerminator()->getSuccessor(k);
            const bool back = loop && to == loop->getHeader();
            if (!back && segment_of.count(to) && segment_of[to] == &s) continue;
            exits.push_back({b->getTerminator(), k, to});
            leaving.insert(to);
        }
    const bool keep_place = !(all_enter && (leaving.size() == 1 || decided));

    // Scalars, in front of the lane loop.
    IRBuilder<> code(spine);
    for (Instruction* i : s.scalars)
        i->moveBefore(*spine, spine->end());

    auto* head = BasicBlock::Create(c, "lanes", &f, s.blocks.front());
    auto* end = BasicBlock::Create(c, "lanes.end", &f);
    auto* after = BasicBlock::Create(c, "lanes.done", &f);
    code.SetInsertPoint(spine);
    code.CreateBr(head);
    IRBuilder<> at_head(head), at_end(end);
    PHINode* lane = at_head.CreatePHI(word, 2, "lane");
    lane->addIncoming(ConstantInt::get(word, 0), spine);

    // The ways out lead through a block that stores where the lane goes on.
    std::map<BasicBlock*, BasicBlock*> out;
    for (const exit& e : exits) {
        BasicBlock*& through = out[e.to];
        if (!through) {
            through = BasicBlock::Create(c, "leave", &f, end);
            IRBuilder<> b(through);
            if (keep_place) b.CreateStore(b.getInt32(number_of(e.to)), place);
            b.CreateBr(end);
            s.blocks.push_back(through);
            segment_of[through] = &s;
        }
        e.branch->setSuccessor(e.way, through);
    }

    // Doors.
    Value* now = nullptr;
    if (!all_enter) now = at_head.CreateLoad(at_head.getInt32Ty(), place);
    BasicBlock* tests = head;
    SmallVector<BasicBlock*, 8> own_blocks(s.blocks.begin(), s.blocks.end());
    own_blocks.push_back(head);

    // Variables: read at the head, written at the end.
    std::map<AllocaInst*, AllocaInst*> temporary;
    std::set<AllocaInst*> written;
    SmallVector<std::pair<Instruction*, AllocaInst*>, 32> uses;
    for (BasicBlock* b : own_blocks)
        for (Instruction& i : *b) {
            Value* p = getLoadStorePointerOperand(&i);
            auto* a = p ? dyn_cast<AllocaInst>(p) : nullptr;
            if (!a || !variables.count(a)) continue;
            uses.push_back({&i, a});
            if (isa<StoreInst>(i)) written.insert(a);
        }
    IRBuilder<> early(head, head->getFirstInsertionPt());
    for (auto& [i, a] : uses) {
        AllocaInst*& t = temporary[a];
        if (!t) {
            t = in_entry(a->getAllocatedType(), a->getName() + ".here");
            temporaries.push_back(t);
            Value* at =
                early.CreateInBoundsGEP(variables[a]->getAllocatedType(), variables[a], {early.getInt64(0), lane});
            auto* old = early.CreateLoad(a->getAllocatedType(), at);
            old->setMetadata(LLVMContext::MD_access_group, group);
            early.CreateStore(old, t);
            if (written.count(a)) {
                Value* to = at_end.CreateInBoundsGEP(variables[a]->getAllocatedType(), variables[a],
                                                     {at_end.getInt64(0), lane});
                auto* final_value = at_end.CreateLoad(a->getAllocatedType(), t);
                auto* kept = at_end.CreateStore(final_value, to);
                kept->setMetadata(LLVMContext::MD_access_group, group);
            }
        }
        i->setOperand(isa<StoreInst>(i) ? 1 : 0, t);
    }
    // Values by formula.
    std::map<Value*, Value*> own;
    for (BasicBlock* b : s.blocks)
        for (Instruction& i : *b) {
            for (Use& u : i.operands()) {
                const auto found = own_values.find(u.get());
                if (found == own_values.end()) continue;
                Value*& v = own[u.get()];
                if (!v) {
                    const own_value& o = found->second;
                    if (o.array)
                        v = early.CreateInBoundsGEP(o.array->getAllocatedType(), o.array, {early.getInt64(0), lane});
                    else
                        v = early.CreateAdd(
                            o.of_group, early.CreateMul(early.CreateZExtOrTrunc(lane, o.step->getType()), o.step));
                }
                u.set(v);
            }
            if (touches_memory(i) && !i.getMetadata(LLVMContext::MD_access_group))
                i.setMetadata(LLVMContext::MD_access_group, group);
        }

    // What a loop of one segment carries for itself is of no use to a lane that has left it: there it may be
    // anything, which saves the vector code a choice.
    BasicBlock* absent = end;
    if (!all_enter && items[loop].size() == 1) {
        SmallVector<BasicBlock*, 4> without;
        for (auto& [to, through] : out)
            if (to != loop->getHeader()) without.push_back(through);
        absent = BasicBlock::Create(c, "absent", &f, end);
        BranchInst::Create(end, absent);
        without.push_back(absent);
        for (auto& [a, t] : temporary)
            if (written.count(a) && a != place && readers[a].size() == 1 && readers[a].count(&s))
                for (BasicBlock* b : without)
                    new StoreInst(PoisonValue::get(a->getAllocatedType()), t, b->getTerminator());
    }
    at_head.SetInsertPoint(head);
    if (all_enter) at_head.CreateBr(doors[0]);
    else
        for (size_t k = 0; k < doors.size(); k++) {
            IRBuilder<> b(tests);
            BasicBlock* otherwise = k + 1 < doors.size() ? BasicBlock::Create(c, "door", &f, end) : absent;
            b.CreateCondBr(b.CreateICmpEQ(now, b.getInt32(number_of(doors[k]))), doors[k], otherwise);
            tests = otherwise;
        }

    Value* next = at_end.CreateAdd(lane, ConstantInt::get(word, 1), "", true, true);
    lane->addIncoming(next, end);
    at_end.CreateCondBr(at_end.CreateICmpEQ(next, ConstantInt::get(word, lanes)), after, head);
    take_whole(end);
    spine = after;

    for (BasicBlock* b : doors)
        lanes_at.at.remove(b);
    for (BasicBlock* b : leaving)
        lanes_at.at.insert(b);
}

void lane_loop_maker::emit_loop(Loop& loop, standing& lanes_at) {
    BasicBlock* const header = loop.getHeader();
    const facts is = facts_of[&loop];
    if (!lanes_at.at.contains(header)) return;
    const bool plain = bool(is.condition), all_come = lanes_at.at.size() == 1;
    const bool masked = lanes_at.masked || !all_come || !plain;
    auto* body = BasicBlock::Create(c, "rounds", &f);
    auto* after = BasicBlock::Create(c, "rounds.done", &f);
    IRBuilder<> code(spine);
    if (!lanes_at.masked && all_come && masked) { // the places of the lanes begin to matter
        auto* vector = FixedVectorType::get(code.getInt32Ty(), lanes);
        code.CreateAlignedStore(ConstantInt::get(vector, number_of(header)), variables[place], Align(32));
    }
    if (all_come) code.CreateBr(body);
    else code.CreateCondBr(any_at(code, header), body, after);
    BasicBlock* const from = spine;
    spine = body;
    SmallVector<std::pair<PHINode*, WeakTrackingVH>, 4> phis;
    // What the loop carries as scalars; other phis have become variables.
    for (PHINode& phi : make_early_inc_range(header->phis())) {
        const unsigned back = phi.getBasicBlockIndex(is.from_latch);
        Value* again = phi.getIncomingValue(back);
        auto* made = PHINode::Create(phi.getType(), 2, phi.getName() + ".all", body);
        made->addIncoming(phi.getIncomingValue(1 - back), from);
        phis.push_back({made, again == &phi ? made : again});
        phi.replaceAllUsesWith(made);
        phi.eraseFromParent();
    }

    standing inside{targets(), masked};
    inside.at.insert(header);
    emit(&loop, inside);
    code.SetInsertPoint(spine);
    for (auto& [phi, again] : phis)
        phi->addIncoming(again, spine);
    if (plain) code.CreateCondBr(is.condition, is.back_if_true ? body : after, is.back_if_true ? after : body);
    else code.CreateCondBr(any_at(code, header), body, after);
    spine = after;

    lanes_at.at.remove(header);
    for (BasicBlock* b : is.exits)
        lanes_at.at.insert(b);
}

void lane_loop_maker::emit(Loop* loop, standing& lanes_at) {
    for (const item& i : items[loop])
        if (i.straight) emit_segment(loop, *i.straight, lanes_at);
        else emit_loop(*i.loop, lanes_at);
}

void lane_loop_maker::run() {
    group = MDNode::getDistinct(c, {});
    const MDNode* named = findOptionMDForLoop(&outer, "llvm.loop.parallel_accesses");
    SmallVector<Metadata*, 4> all(named->op_begin(), named->op_end());
    all.push_back(group);
    accesses = MDNode::get(c, all);

    clone_and_group();
    DominatorTree tree(f);
    LoopInfo loops(tree);
    // Loops of the copy hang below the loop over groups.
    items.clear();
    BasicBlock* const first = region.front();
    Loop* const over_groups = loops.getLoopFor(region_end);
    arrange(over_groups, first, loops);
    find_scalars(loops);
    find_loops();
    place = new_variable(Type::getInt32Ty(c), "place");
    demote_phis();
    demote_values();
    find_readers();
    BranchInst* entry = cast<BranchInst>(spine->getTerminator());
    entry->eraseFromParent();
    standing at{targets(), false};
    at.at.insert(first);
    emit(over_groups, at);
    BranchInst::Create(region_end, spine);

    // Stand-ins and variables are gone but for their temporaries, which are registers.
    for (auto& [stand_in, unused] : own_values) {
        stand_in->replaceAllUsesWith(PoisonValue::get(stand_in->getType()));
        cast<Instruction>(stand_in)->eraseFromParent();
    }
    for (auto& [variable, array] : variables)
        if (variable->use_empty()) variable->eraseFromParent();
    removeUnreachableBlocks(f);
    DominatorTree now(f);
    SmallVector<AllocaInst*, 32> promotable;
    for (AllocaInst* t : temporaries)
        if (isAllocaPromotable(t)) promotable.push_back(t);
    PromoteMemToReg(promotable, now);
}

} // namespace

bool loops_to_lane_loops(Function& f, const step_options& options, OptimizationRemarkEmitter& remarks) {
    bool changed = false;
    std::set<BasicBlock*> tried;
    // One at a time: each changes the function.
    for (bool again = true; again;) {
        again = false;
        DominatorTree tree(f);
        LoopInfo loops(tree);
        for (Loop* loop : loops.getLoopsInPreorder()) {
            if (!over_work_items(*loop) || !tried.insert(loop->getHeader()).second) continue;
            if (findOptionMDForLoop(loop, "llvm.loop.isvectorized") || findOptionMDForLoop(loop, lanes_mark))
                continue;
            changed |= sink_addresses(f, *loop);
            // Among the loops over the dimensions of a work-group the innermost is made wide.
            if (any_of(*loop, [](const Loop* inner) { return over_work_items(*inner); })) continue;
            if (loop->isInnermost() && !has_private_arrays(*loop)) continue;
            TargetLibraryInfoImpl libraries{Triple(f.getParent()->getTargetTriple())};
            TargetLibraryInfo library(libraries, &f);
            AssumptionCache assumptions(f);
            ScalarEvolution evolution(f, library, assumptions, tree, loops);
            changed |= simplifyLoop(loop, &tree, &loops, &evolution, &assumptions, nullptr, false);
            changed |= formLCSSARecursively(*loop, tree, &loops, &evolution);
            unsigned lanes = options.width > 1 ? options.width : 8;
            // A small work-group fills fewer.
            if (const unsigned count = evolution.getSmallConstantTripCount(loop); count > 1)
                while (lanes > count)
                    lanes /= 2;
            lane_loop_maker maker(f, *loop, lanes, evolution);
            const std::string why = maker.refusal();
            DebugLoc at = loop->getStartLoc();
            BasicBlock* header = loop->getHeader();
            if (!why.empty()) {
                remarks.emit([&] {
                    return OptimizationRemarkMissed("orvane", "WorkItems", at, header)
                           << "work-items stay one after another: " << why;
                });
                continue;
            }
            // Of the loop that stays for the last work-items, which is gone where there are known to be none.
            addStringMetadataToLoop(loop, "llvm.loop.isvectorized", 1);
            addStringMetadataToLoop(loop, "llvm.loop.unroll.disable", 1);
            maker.run();
            remarks.emit([&] {
                return OptimizationRemark("orvane", "WorkItems", at, &f.getEntryBlock())
                       << "loop over work-items runs by lanes, " << ore::NV("Width", lanes) << " at a time";
            });
            changed = again = true;
            break;
        }
    }
    return changed;
}

} // namespace orvane::ir
