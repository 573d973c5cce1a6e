// SPDX-License-Identifier: GPL-3.0-or-later
#include "AllocationCount.h"

#include <atomic>
#include <cstdlib>
#include <new>

namespace {

std::atomic<std::size_t> count = 0;

}  // namespace

// The forms for lists come through here too.
void* operator new(std::size_t size) {
    count.fetch_add(1, std::memory_order_relaxed);
    if (void* const memory = std::malloc(size == 0 ? 1 : size)) {
        return memory;
    }
    throw std::bad_alloc();
}

void operator delete(void* memory) noexcept {
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}

std::size_t tallyrig::benchmarks::allocationCount() {
    return count;
}
