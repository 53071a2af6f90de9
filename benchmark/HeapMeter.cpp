#include "benchmark/HeapMeter.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <malloc.h>

// The C library's allocator, which the functions below wrap.
extern "C" {
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* block, std::size_t size);
void* __libc_memalign(std::size_t alignment, std::size_t size);
void __libc_free(void* block);
}

namespace {

bool counting = false;
std::ptrdiff_t current = 0;
std::ptrdiff_t most = 0;

std::ptrdiff_t sizeOf(void* block) {
    return block ? static_cast<std::ptrdiff_t>(malloc_usable_size(block)) : 0;
}

void* counted(void* block) {
    if (counting) {
        current += sizeOf(block);
        most = std::max(most, current);
    }
    return block;
}

}  // namespace

extern "C" {
void* malloc(std::size_t size) {
    return counted(__libc_malloc(size));
}
void* calloc(std::size_t count, std::size_t size) {
    return counted(__libc_calloc(count, size));
}
void* realloc(void* block, std::size_t size) {
    if (!counting) return __libc_realloc(block, size);
    // The old and the new block are not counted together: the kernel moves large blocks without copying.
    const std::ptrdiff_t before = sizeOf(block);
    void* const after = __libc_realloc(block, size);
    if (after || size == 0) current -= before;
    return counted(after);
}
void* memalign(std::size_t alignment, std::size_t size) {
    return counted(__libc_memalign(alignment, size));
}
void* aligned_alloc(std::size_t alignment, std::size_t size) {
    return memalign(alignment, size);
}
int posix_memalign(void** block, std::size_t alignment, std::size_t size) {
    *block = memalign(alignment, size);
    return *block ? 0 : ENOMEM;
}
void free(void* block) {
    if (counting) current -= sizeOf(block);
    __libc_free(block);
}
}

namespace tsln::bench {

HeapMeter::HeapMeter() {
    current = most = 0;
    counting = true;
}

HeapMeter::~HeapMeter() {
    counting = false;
}

std::size_t HeapMeter::peak() const {
    return static_cast<std::size_t>(most);
}

std::ptrdiff_t HeapMeter::now() const {
    return current;
}

}  // namespace tsln::bench
