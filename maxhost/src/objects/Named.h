#pragma once

#include <max.h>

namespace maxhost {

/// An object of the host's own class `Object`, which says its id and name (kClass, kName).
template <class Object, class Base>
class Named : public Base {
  public:
    void GetClassName(TSTR& s) override { s = Object::kName; }
    Class_ID ClassID() override { return Class_ID(Object::kClass, 0); }
    void InitNodeName(TSTR& s) override { s = Object::kName; }

  protected:
    using Base::Base;
    ~Named() override = default;
};

}  // namespace maxhost
