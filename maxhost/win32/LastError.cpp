#include "maxhost/win32/LastError.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace maxhost::win32 {

namespace {

struct LastError {
    DWORD code = ERROR_SUCCESS;
    std::string detail;
};

/// Lives as long as the process: static objects of libraries may call until the very end.
LastError& lastError() {
    static LastError& error = *new LastError;
    return error;
}

}  // namespace

void setLastError(DWORD code, std::string detail) {
    lastError() = LastError{code, std::move(detail)};
}

}  // namespace maxhost::win32

using maxhost::win32::lastError;

DWORD WINAPI GetLastError() {
    return lastError().code;
}

void WINAPI SetLastError(DWORD error) {
    maxhost::win32::setLastError(error, std::string());
}

DWORD WINAPI FormatMessageA(DWORD, LPCVOID, DWORD error, DWORD, LPSTR buffer, DWORD size, void*) {
    const bool known = error == lastError().code && !lastError().detail.empty();
    const std::string text = known ? lastError().detail : "error " + std::to_string(error);
    if (buffer == nullptr || size == 0) return 0;
    const std::size_t length = std::min<std::size_t>(text.size(), size - 1);
    std::memcpy(buffer, text.data(), length);
    buffer[length] = '\0';
    return static_cast<DWORD>(length);
}
