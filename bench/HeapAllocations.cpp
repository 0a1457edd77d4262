#include "HeapAllocations.h"

#include <atomic>

// Heap allocations are counted where they all end up: Qt's containers call malloc directly, the
// C++ library's operator new calls it too. glibc's own entry points do the work.
extern "C" {
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* pointer, std::size_t size);
void __libc_free(void* pointer);
}

namespace {
std::atomic<std::size_t> g_allocations { 0 };
}

std::size_t HeapAllocations()
{
    return g_allocations.load(std::memory_order_relaxed);
}

extern "C" {
void* malloc(std::size_t size) noexcept
{
    g_allocations.fetch_add(1, std::memory_order_relaxed);
    return __libc_malloc(size);
}

void* calloc(std::size_t count, std::size_t size) noexcept
{
    g_allocations.fetch_add(1, std::memory_order_relaxed);
    return __libc_calloc(count, size);
}

void* realloc(void* pointer, std::size_t size) noexcept
{
    g_allocations.fetch_add(1, std::memory_order_relaxed);
    return __libc_realloc(pointer, size);
}

void free(void* pointer) noexcept
{
    __libc_free(pointer);
}
}
