#include "robustness/FailingAllocation.hpp"

#include <cerrno>
#include <cstddef>
#include <cstdlib>
#include <new>

namespace {

/// How many allocations are left before the one that fails, itself included; from 0 on none fails.
thread_local int left = 0;

bool fails() {
    if (left <= 0 || --left > 0)
        return false;
    errno = ENOMEM;
    return true;
}

}  // namespace

FailingAllocation::FailingAllocation(int turn) {
    left = turn;
}

FailingAllocation::~FailingAllocation() {
    left = 0;
}

bool FailingAllocation::hasHappened() const {
    return left == 0;
}

#if NURVA_SANITIZED

void* operator new(std::size_t size) {
    void* const memory = fails() ? nullptr : std::malloc(size == 0 ? 1 : size);
    if (!memory)
        throw std::bad_alloc();
    return memory;
}

void operator delete(void* memory) noexcept {
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}

#else

extern "C" {

void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* memory, std::size_t size);

void* malloc(std::size_t size) noexcept {
    return fails() ? nullptr : __libc_malloc(size);
}

void* calloc(std::size_t count, std::size_t size) noexcept {
    return fails() ? nullptr : __libc_calloc(count, size);
}

void* realloc(void* memory, std::size_t size) noexcept {
    return fails() ? nullptr : __libc_realloc(memory, size);
}

}  // extern "C"

#endif
