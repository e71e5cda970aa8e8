#include "platform/linux/system_random_source.h"

#include <sys/sysinfo.h>

namespace quenloft {

namespace {

FoldingPcg GeneratorFromSystemEntropy() {
    std::random_device device;
    const auto word = [&] { return pcg_extras::pcg128_t(device()); };
    return FoldingPcg((word() << 96) | (word() << 64) | (word() << 32) | word());
}

}  // namespace

SystemRandomSource::SystemRandomSource() : generator_(GeneratorFromSystemEntropy()) {}

void SystemRandomSource::ReadMemory(MemoryFigures& memory) {
    // The address space of a 64-bit process: 47 bits for user space.
    constexpr double kAddressSpace = 140737488355328.0;
    struct sysinfo info {};
    if (sysinfo(&info) != 0) {
        return;  // The figures stay as they were: entropy is only ever added.
    }
    const double unit = info.mem_unit;
    memory.structureLength = sizeof(info);
    memory.totalPhysical = static_cast<double>(info.totalram) * unit;
    memory.availablePhysical = static_cast<double>(info.freeram + info.bufferram) * unit;
    memory.totalPageFile = memory.totalPhysical + static_cast<double>(info.totalswap) * unit;
    memory.availablePageFile = memory.availablePhysical + static_cast<double>(info.freeswap) * unit;
    memory.totalVirtual = kAddressSpace;
    memory.availableVirtual = kAddressSpace - (memory.totalPhysical - memory.availablePhysical);
    memory.memoryLoad =
        memory.totalPhysical > 0
            ? std::floor(100.0 * (1.0 - memory.availablePhysical / memory.totalPhysical))
            : 0.0;
}

}  // namespace quenloft
