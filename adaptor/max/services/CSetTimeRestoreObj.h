#pragma once

#include "core/CUndo.h"

namespace qvo::zmx::adaptor::max {

/// Brings the scene time back: a key batch moves it, and the user expects undo to show the moment of the
/// change.
class CSetTimeRestoreObj : public CUndo {
  public:
    /// `seconds` is the time to go back to.
    explicit CSetTimeRestoreObj(double seconds) : savedTime_(seconds) {}

    /// Sets the saved time; an undo also saves the present one, so that undo and redo swap the two.
    void restore(bool isUndo) override;
    void redo() override { restore(true); }

  private:
    double savedTime_;  ///< seconds
};

}  // namespace qvo::zmx::adaptor::max
