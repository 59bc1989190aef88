#pragma once

#include <cstring>

#include "strbasic.h"
#include "tab.h"

/// List of names that owns its texts.
class NameTab : public Tab<TCHAR*> {
  public:
    NameTab() = default;
    NameTab(const NameTab&) = delete;
    NameTab& operator=(const NameTab&) = delete;
    ~NameTab() { SetSize0(); }

    /// Copies `name`. Returns its index.
    int AddName(const TCHAR* name) {
        const size_t size = std::strlen(name) + 1;
        TCHAR* copy = static_cast<TCHAR*>(MAX_malloc(size));
        if (copy == nullptr) throw std::bad_alloc();
        std::memcpy(copy, name, size);
        return Append(1, &copy);
    }
    /// Index of the name, -1 when it is not in the list.
    int FindName(const TCHAR* name) const {
        for (int i = 0; i < Count(); ++i)
            if (std::strcmp((*this)[i], name) == 0) return i;
        return -1;
    }
    /// Empties the list.
    void SetSize0() {
        for (int i = 0; i < Count(); ++i)
            MAX_free((*this)[i]);
        ZeroCount();
    }
};
