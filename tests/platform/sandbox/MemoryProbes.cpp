#include "platform/sandbox/Probe.hpp"

#include <sys/ipc.h>
#include <sys/mman.h>
#include <sys/syscall.h>

namespace {

constexpr std::size_t page = 4096;
constexpr key_t missingKey = 0x6e757276;

int map(int protection) {
    void* const memory = ::mmap(nullptr, page, protection, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    return memory == MAP_FAILED ? errno : 0;
}

int makeExecutable(const Grounds&) {
    void* const memory =
        ::mmap(nullptr, page, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    return errorOf(::mprotect(memory, page, PROT_READ | PROT_EXEC));
}

}  // namespace

std::vector<Probe> memoryProbes() {
    using enum Outside;
    return {
        {"MapExecutableMemory", EPERM, works,
         [](const Grounds&) { return map(PROT_READ | PROT_EXEC); }},
        {"MapMemoryToWriteAndExecute", EPERM, works,
         [](const Grounds&) { return map(PROT_READ | PROT_WRITE | PROT_EXEC); }},
        {"MakeMemoryExecutable", EPERM, works, makeExecutable},
        callProbe("ProtectMemoryByAKey", EPERM, works, SYS_pkey_mprotect, nullptr, 0, PROT_EXEC,
                  -1),
        callProbe("RemapPages", EPERM, answersOtherwise, SYS_remap_file_pages, 1, 1, 1, 1, 1),
        callProbe("MakeAMemoryFile", EPERM, works, SYS_memfd_create, "probe", 0),
        callProbe("ShareMemory", EPERM, answersOtherwise, SYS_shmget, missingKey, 1, 0),
        callProbe("ShareAQueue", EPERM, answersOtherwise, SYS_msgget, missingKey, 0),
        callProbe("ShareASemaphore", EPERM, answersOtherwise, SYS_semget, missingKey, 1, 0),
        callProbe("OpenAQueue", EPERM, answersOtherwise, SYS_mq_open, "missing", 0, 0, nullptr),
    };
}
