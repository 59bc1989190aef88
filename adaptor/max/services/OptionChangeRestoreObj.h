#pragma once

#include "core/CUndo.h"

namespace qvo::zmx::adaptor::max {

/// Brings the stored value of a check option back, and tells the core.
class OptionChangeRestoreObj : public CUndo {
  public:
    OptionChangeRestoreObj(unsigned int id, bool formerValue, bool newValue)
        : id_(id), formerValue_(formerValue), newValue_(newValue) {}

    void restore(bool isUndo) override;
    void redo() override;

  private:
    unsigned int id_;
    bool formerValue_;
    bool newValue_;
};

}  // namespace qvo::zmx::adaptor::max
