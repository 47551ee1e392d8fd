// A shared object as its file has it: sections and machine code.
#pragma once

#include "support.h"

#include <Zydis/Zydis.h>
#include <elf.h>
#include <fstream>
#include <set>

namespace orvane {

// The file under test: the library, and the probes, which are made the same way.
struct binary {
    explicit binary(object& o) : in(o) {
        std::ifstream file(o.path, std::ios::binary);
        bytes.assign(std::istreambuf_iterator<char>(file), {});
        head = (const Elf64_Ehdr*)bytes.data();
        sections = (const Elf64_Shdr*)(bytes.data() + head->e_shoff);
        segments = (const Elf64_Phdr*)(bytes.data() + head->e_phoff);
        ZydisDecoderInit(&decoder, ZYDIS_MACHINE_MODE_LONG_64, ZYDIS_STACK_WIDTH_64);
    }
    const Elf64_Shdr* section(std::string_view name) const {
        const char* names = bytes.data() + sections[head->e_shstrndx].sh_offset;
        for (int i = 0; i < head->e_shnum; i++)
            if (names + sections[i].sh_name == name) return &sections[i];
        return nullptr;
    }
    struct instruction {
        uint64_t at;
        ZydisDecodedInstruction what;
        ZydisDecodedOperand operands[ZYDIS_MAX_OPERAND_COUNT];

        bool is_return() const { return what.meta.category == ZYDIS_CATEGORY_RET; }
        bool is_call() const { return what.meta.category == ZYDIS_CATEGORY_CALL; }
        bool is_jump() const { return what.meta.category == ZYDIS_CATEGORY_UNCOND_BR; }
        bool is_branch() const { return what.meta.category == ZYDIS_CATEGORY_COND_BR; }
        uint64_t target() const {
            ZyanU64 t = 0;
            ZydisCalcAbsoluteAddress(&what, &operands[0], at, &t);
            return t;
        }
        // Touches a vector register of number 8 to 15 (or beyond).
        bool touches_upper_registers() const {
            for (int i = 0; i < what.operand_count; i++) {
                if (operands[i].type != ZYDIS_OPERAND_TYPE_REGISTER) continue;
                const auto c = ZydisRegisterGetClass(operands[i].reg.value);
                if ((c == ZYDIS_REGCLASS_XMM || c == ZYDIS_REGCLASS_YMM || c == ZYDIS_REGCLASS_ZMM) &&
                    ZydisRegisterGetId(operands[i].reg.value) >= 8)
                    return true;
            }
            return false;
        }
        bool touches_vector_registers() const {
            for (int i = 0; i < what.operand_count; i++) {
                if (operands[i].type != ZYDIS_OPERAND_TYPE_REGISTER) continue;
                const auto c = ZydisRegisterGetClass(operands[i].reg.value);
                if (c == ZYDIS_REGCLASS_XMM || c == ZYDIS_REGCLASS_YMM) return true;
            }
            return false;
        }
    };
    std::map<uint64_t, instruction> code(const object::entry& f) const {
        std::map<uint64_t, instruction> all;
        const Elf64_Shdr* text = section(".text");
        for (uint64_t at = f.value; at < f.value + f.size;) {
            instruction i{at, {}, {}};
            const auto* p = bytes.data() + text->sh_offset + (at - text->sh_addr);
            if (!ZYAN_SUCCESS(ZydisDecoderDecodeFull(&decoder, p, f.value + f.size - at, &i.what, i.operands))) {
                ADD_FAILURE() << f.name << ": no instruction at " << std::hex << at;
                return all;
            }
            all[at] = i;
            at += i.what.length;
        }
        return all;
    }

    object& in;
    std::string bytes;
    const Elf64_Ehdr* head;
    const Elf64_Shdr* sections;
    const Elf64_Phdr* segments;
    ZydisDecoder decoder;
};

// What a function refers to, and what it jumps and calls to outside itself.
struct references {
    std::map<uint64_t, int> data; // with the bytes read; 0: the address alone
    std::set<uint64_t> code;
    bool takes_estimates = false;
};
inline references references_of(const binary& b, const object::entry& f) {
    references r;
    const Elf64_Shdr* data = b.section(".rodata");
    for (const auto& [at, i] : b.code(f)) {
        const auto m = i.what.mnemonic;
        if (m == ZYDIS_MNEMONIC_VRCPPS || m == ZYDIS_MNEMONIC_VRSQRTPS) r.takes_estimates = true;
        for (int k = 0; k < i.what.operand_count; k++) {
            ZyanU64 to;
            if (!ZYAN_SUCCESS(ZydisCalcAbsoluteAddress(&i.what, &i.operands[k], at, &to))) continue;
            if (i.operands[k].type == ZYDIS_OPERAND_TYPE_IMMEDIATE) {
                if (to < f.value || to >= f.value + f.size) r.code.insert(to);
            } else if (i.operands[k].mem.base == ZYDIS_REGISTER_RIP && to >= data->sh_addr &&
                       to < data->sh_addr + data->sh_size)
                r.data[to] = m == ZYDIS_MNEMONIC_LEA ? 0 : i.operands[k].size / 8;
        }
    }
    return r;
}

} // namespace orvane
