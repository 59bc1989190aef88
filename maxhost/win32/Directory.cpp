#include <sys/stat.h>
#include <windows.h>

#include <cerrno>
#include <cstring>

#include "maxhost/win32/LastError.h"
#include "maxhost/win32/NativePath.h"

namespace {

DWORD windowsError(int error) {
    switch (error) {
        case EEXIST:
            return ERROR_ALREADY_EXISTS;
        case ENOENT:
        case ENOTDIR:
            return ERROR_PATH_NOT_FOUND;
        default:
            return ERROR_ACCESS_DENIED;
    }
}

}  // namespace

BOOL WINAPI CreateDirectoryA(LPCSTR path, LPSECURITY_ATTRIBUTES) {
    const std::string folder = maxhost::win32::nativePath(path == nullptr ? "" : path);
    if (mkdir(folder.c_str(), 0777) == 0) return TRUE;
    const int error = errno;
    maxhost::win32::setLastError(windowsError(error), folder + ": " + std::strerror(error));
    return FALSE;
}
