#pragma once

#include <windows.h>

#include <cstddef>
#include <new>

#include "coreexp.h"

/// The host's heap. What one library allocates with it, another may free with it. Null when memory is short.
CoreExport void* MAX_malloc(size_t size);
CoreExport void* MAX_calloc(size_t count, size_t size);
CoreExport void* MAX_realloc(void* block, size_t size);
CoreExport void MAX_free(void* block);

/// Base without data that puts its descendants on the host's heap.
/// Simplified: the debug forms (file, line) and the over-aligned forms are left out.
class MaxHeapOperators {
  public:
    static void* operator new(size_t size) { return orThrow(MAX_malloc(size)); }
    static void* operator new[](size_t size) { return orThrow(MAX_malloc(size)); }
    static void* operator new(size_t size, const std::nothrow_t&) noexcept { return MAX_malloc(size); }
    static void* operator new[](size_t size, const std::nothrow_t&) noexcept { return MAX_malloc(size); }
    static void* operator new(size_t, void* place) noexcept { return place; }
    static void* operator new[](size_t, void* place) noexcept { return place; }
    static void operator delete(void* block) noexcept { MAX_free(block); }
    static void operator delete[](void* block) noexcept { MAX_free(block); }
    static void operator delete(void* block, const std::nothrow_t&) noexcept { MAX_free(block); }
    static void operator delete[](void* block, const std::nothrow_t&) noexcept { MAX_free(block); }
    static void operator delete(void*, void*) noexcept {}
    static void operator delete[](void*, void*) noexcept {}

  private:
    static void* orThrow(void* block) {
        if (block == nullptr) throw std::bad_alloc();
        return block;
    }
};
