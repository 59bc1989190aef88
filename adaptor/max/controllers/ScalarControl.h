#pragma once

#include "adaptor/max/controllers/BaseControl.h"
#include "adaptor/max/controllers/ControlList.h"

namespace qvo::zmx::adaptor::max {

/// Drives a float parameter: straight lines between the keys, constant before the first and after the last.
class ScalarControl : public BaseControl<float> {
  public:
    ScalarControl();

    /// Nothing: there is no rollup.
    void BeginEditParams(IObjParam* /*ip*/, ULONG /*flags*/, Animatable* /*prev*/) override {}
    void EndEditParams(IObjParam* /*ip*/, ULONG /*flags*/, Animatable* /*next*/) override {}

    /// `val` is a float. CTRL_ABSOLUTE replaces it, CTRL_RELATIVE adds to it. The result holds at `t` only.
    void GetValue(TimeValue t, void* val, Interval& valid, GetSetMethod method) override;

    /// `val` is a float, the new value or, with CTRL_RELATIVE, what is added to the current one. A key arises
    /// in animate mode only; otherwise the value lasts until another time is evaluated.
    void SetValue(TimeValue t, void* val, int commit, GetSetMethod method) override;

    /// Interpolated; the current value while there are no keys.
    Key keyAtTime(TimeValue t) override;

  protected:
    ~ScalarControl() override = default;

  private:
    ControlListEntry<ScalarControl> listEntry_;
};

}  // namespace qvo::zmx::adaptor::max
