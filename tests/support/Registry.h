#pragma once

#include <windows.h>

#include <string>

#ifndef _WIN32
#include "maxhost/win32/Win32Session.h"
#endif

namespace qvo::zmx::test {

/// Text values of the product's registry key, gone again at the end of its life. The Windows build writes the
/// registry of the prefix that the tests run in.
class ProductRegistry {
  public:
    static constexpr char kKey[] = "SOFTWARE\\Wow6432Node\\Zorva Animations";

    ProductRegistry() = default;
    ProductRegistry(const ProductRegistry&) = delete;
    ProductRegistry& operator=(const ProductRegistry&) = delete;

#ifdef _WIN32
    ~ProductRegistry() {
        RegDeleteKeyA(HKEY_LOCAL_MACHINE, kKey);
    }

    void set(const std::string& name, const std::string& text) {
        RegSetKeyValueA(HKEY_LOCAL_MACHINE, kKey, name.c_str(), REG_SZ, text.c_str(),
                        static_cast<DWORD>(text.size() + 1));
    }
#else
    ~ProductRegistry() {
        maxhost::win32::Win32Session::clearRegistry();
    }

    void set(const std::string& name, const std::string& text) {
        maxhost::win32::Win32Session::setRegistryValue(std::string("HKEY_LOCAL_MACHINE\\") + kKey, name,
                                                       text);
    }
#endif
};

}  // namespace qvo::zmx::test
