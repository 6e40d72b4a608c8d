// A plugin for the emulator: counts the instructions that a program executes between two marks (marks.h).
//
//     qemu-aarch64 -plugin counter.so,out=COUNTS.csv PROGRAM
//
// Writes a line for each run: its number, and the instructions from the end of the call that marks its start to that of
// the call that marks its end. Every block of translated code adds its length to a sum when it is entered, so a block left
// in its midst, as by a signal, counts as a whole.
#include "marks.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <string_view>

// The part of the emulator's plugin interface, version 1, that a counter needs; Debian has no package with its header.
extern "C" {

struct qemu_plugin_tb;
using BlockCallback = void (*)(std::uint64_t plugin, qemu_plugin_tb* block);
using CallCallback = void (*)(std::uint64_t plugin, unsigned processor, std::int64_t number, std::uint64_t first,
                              std::uint64_t second, std::uint64_t, std::uint64_t, std::uint64_t, std::uint64_t,
                              std::uint64_t, std::uint64_t);
enum qemu_plugin_op { addToNumber };

void qemu_plugin_register_vcpu_tb_trans_cb(std::uint64_t plugin, BlockCallback callback);
void qemu_plugin_register_vcpu_syscall_cb(std::uint64_t plugin, CallCallback callback);
void qemu_plugin_register_vcpu_tb_exec_inline(qemu_plugin_tb* block, qemu_plugin_op operation, void* number,
                                              std::uint64_t operand);
std::size_t qemu_plugin_tb_n_insns(const qemu_plugin_tb* block);

[[gnu::visibility("default")]] extern const int qemu_plugin_version;
const int qemu_plugin_version = 1;
[[gnu::visibility("default")]] int qemu_plugin_install(std::uint64_t plugin, const void* emulator, int argc,
                                                       char** argv);
}

namespace vecmat::bench {

namespace {

std::uint64_t executed = 0;
std::uint64_t atStart = 0;
std::FILE* output = nullptr;

void countWhenEntered(std::uint64_t, qemu_plugin_tb* block)
{
    qemu_plugin_register_vcpu_tb_exec_inline(block, addToNumber, &executed, qemu_plugin_tb_n_insns(block));
}

void noteMark(std::uint64_t, unsigned, std::int64_t number, std::uint64_t mark, std::uint64_t run, std::uint64_t,
              std::uint64_t, std::uint64_t, std::uint64_t, std::uint64_t, std::uint64_t)
{
    if (number != markCall)
        return;
    if (mark == static_cast<std::uint64_t>(Mark::start)) {
        atStart = executed;
        return;
    }
    std::fprintf(output, "%llu,%llu\n", static_cast<unsigned long long>(run),
                 static_cast<unsigned long long>(executed - atStart));
    std::fflush(output);
}

} // namespace

} // namespace vecmat::bench

int qemu_plugin_install(std::uint64_t plugin, const void*, int argc, char** argv)
{
    using namespace vecmat::bench;
    constexpr std::string_view option = "out=";
    if (argc != 1 || !std::string_view(argv[0]).starts_with(option))
        return 1;
    output = std::fopen(argv[0] + option.size(), "w");
    if (output == nullptr)
        return 1;
    std::fprintf(output, "run,instructions\n");
    qemu_plugin_register_vcpu_tb_trans_cb(plugin, countWhenEntered);
    qemu_plugin_register_vcpu_syscall_cb(plugin, noteMark);
    return 0;
}
