// SPDX-License-Identifier: GPL-3.0-or-later
#include "MemoryCount.h"

#include <malloc.h>

namespace tallyrig::benchmarks {

std::size_t heapInUse() {
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

}  // namespace tallyrig::benchmarks
