#pragma once

#include "core/CoreObject.h"

namespace qvo::zmx::core {

/// The core object's slots that nobody calls. They are there to keep the others in their places.
class ReservedSlots : public CoreObject {
  public:
    void reserved0() override {}
    void reserved1() override {}
    void reserved2() override {}
    void reserved3() override {}
    void reserved4() override {}
    void reserved5() override {}
    void reserved6() override {}
    void reserved7() override {}
    void reserved8() override {}
    void reserved9() override {}
    void reserved10() override {}
    void reserved11() override {}
    void reserved12() override {}
    void reserved13() override {}
    void reserved14() override {}
    void reserved15() override {}
    void reserved16() override {}
    void reserved21() override {}
    void reserved22() override {}
    void reserved23() override {}
    void reserved24() override {}
    void reserved27() override {}
    void reserved28() override {}
    void reserved30() override {}
    void reserved31() override {}
    void reserved32() override {}
    void reserved33() override {}
    void reserved34() override {}
    void reserved35() override {}
    void reserved36() override {}
    void reserved37() override {}
    void reserved38() override {}
    void reserved39() override {}
    void reserved40() override {}
    void reserved42() override {}
    void reserved43() override {}
    void reserved44() override {}
    void reserved45() override {}
    void reserved47() override {}

  protected:
    ReservedSlots() = default;
    ~ReservedSlots() = default;
};

}  // namespace qvo::zmx::core
