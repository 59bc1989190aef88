#pragma once

#include <string>

#include "maxhost/src/files/Bytes.h"

namespace maxhost {

/// The whole file. Errors    throws std::runtime_error "PATH: cause".
Bytes readFileBytes(const std::string& path);

/// Writes the parts one after the other under a temporary name beside `path`, which then takes the name's
/// place: a file that was there before is whole until the new one is. Errors    throws std::runtime_error
/// "PATH: cause"; nothing has changed then.
void replaceFileBytes(const std::string& path, const Bytes& bytes);

}  // namespace maxhost
