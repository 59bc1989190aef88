#pragma once

#include <string>
#include <utility>

#include "strbasic.h"

/// The host's narrow string.
/// Simplified: owns its characters instead of sharing them until written; the visible behaviour is the same.
class CStr {
  public:
    CStr() = default;
    CStr(const char* text) : text_(text == nullptr ? "" : text) {}

    CStr& operator=(const char* text) {
        text_ = text == nullptr ? "" : text;
        return *this;
    }

    char* data() { return text_.data(); }
    const char* data() const { return text_.c_str(); }
    operator char*() { return data(); }
    operator const char*() const { return data(); }

    int Length() const { return static_cast<int>(text_.size()); }
    int length() const { return Length(); }
    /// True when the text is empty.
    bool isNull() const { return text_.empty(); }

    CStr& operator+=(const CStr& tail) {
        text_ += tail.text_;
        return *this;
    }
    CStr& operator+=(const char* tail) { return *this += CStr(tail); }
    CStr operator+(const CStr& tail) const {
        CStr sum = *this;
        sum += tail;
        return sum;
    }
    CStr operator+(const char* tail) const { return *this + CStr(tail); }

    bool operator==(const CStr& other) const { return text_ == other.text_; }
    bool operator==(const char* other) const { return *this == CStr(other); }
    bool operator!=(const CStr& other) const { return !(*this == other); }
    bool operator!=(const char* other) const { return !(*this == other); }
    bool operator<(const CStr& other) const { return text_ < other.text_; }

  private:
    std::string text_;
};

typedef CStr TSTR;
typedef CStr MSTR;
