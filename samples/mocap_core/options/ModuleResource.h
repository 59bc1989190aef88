#pragma once

#include <optional>
#include <string>

namespace qvo::zmx::mocap {

/// The bytes of resource `id` of type `type` in the library that `object` comes from: `object` is any object
/// with virtual operations whose class is defined there. Nothing when the library or the resource cannot be
/// found.
std::optional<std::string> readResourceBeside(const void* object, const char* type, unsigned short id);

}  // namespace qvo::zmx::mocap
