#pragma once

#include "util/ReturnValue.h"

namespace qvo::util {

/// Sink that copies the result into a variable of the caller by assignment (for a CMesh: through its virtual
/// assignment). The target must outlive the sink and keeps its value when `set` is never called.
template <class T>
class ReturnInto : public ReturnValue<T> {
  public:
    explicit ReturnInto(T& target) : target_(target) {}

    void set(const T& value) override { target_ = value; }

  private:
    T& target_;
};

}  // namespace qvo::util
