#include "samples/mocap_core/options/ModuleResource.h"

#include <cstdint>
#include <cstring>

// The system's calls, declared here with plain types: a core includes no header of the system that it runs
// on. Handles are pointers that nobody looks behind; a resource's name is its number where a text's address
// would stand.
extern "C" {
int GetModuleHandleExA(std::uint32_t flags, const char* address, void** module);
void* FindResourceA(void* module, std::uintptr_t name, const char* type);
void* LoadResource(void* module, void* resource);
void* LockResource(void* loaded);
std::uint32_t SizeofResource(void* module, void* resource);
}

namespace qvo::zmx::mocap {

namespace {

constexpr std::uint32_t kUnchangedCount = 0x2;
constexpr std::uint32_t kFromAddress = 0x4;

/// An object begins with the address of its class's table, which lies in the library that defines the class.
const char* tableOf(const void* object) {
    const char* table = nullptr;
    std::memcpy(&table, object, sizeof table);
    return table;
}

}  // namespace

std::optional<std::string> readResourceBeside(const void* object, const char* type, unsigned short id) {
    void* module = nullptr;
    if (!GetModuleHandleExA(kFromAddress | kUnchangedCount, tableOf(object), &module)) return std::nullopt;
    void* const resource = FindResourceA(module, id, type);
    if (!resource) return std::nullopt;
    const void* const bytes = LockResource(LoadResource(module, resource));
    if (!bytes) return std::nullopt;
    return std::string(static_cast<const char*>(bytes), SizeofResource(module, resource));
}

}  // namespace qvo::zmx::mocap
