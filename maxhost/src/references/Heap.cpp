#include <cstdlib>

#include <maxheap.h>

void* MAX_malloc(size_t size) {
    return std::malloc(size == 0 ? 1 : size);
}
void* MAX_calloc(size_t count, size_t size) {
    return std::calloc(count == 0 ? 1 : count, size == 0 ? 1 : size);
}
void* MAX_realloc(void* block, size_t size) {
    return std::realloc(block, size == 0 ? 1 : size);
}
void MAX_free(void* block) {
    std::free(block);
}
