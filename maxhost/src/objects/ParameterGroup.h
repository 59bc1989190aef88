#pragma once

#include <control.h>

#include <array>

namespace maxhost {

/// An animatable number of an object.
struct ParameterDefinition {
    const TCHAR* name;
    float initial;
};

/// The animatable numbers of one object: float controllers, shown as the tracks of one group. It belongs to
/// the object; the object is what refers to the controllers, at the same indices. A parameter without
/// controller has its initial value.
class ParameterGroup final : public Animatable {
  public:
    static constexpr const TCHAR* kName = _T("Parameters");
    static constexpr int kMost = 3;

    /// `definitions` must outlive the group.
    ParameterGroup(ReferenceTarget& owner, const ParameterDefinition* definitions, int count)
        : owner_(owner), definitions_(definitions), count_(count) {}
    ~ParameterGroup() override = default;

    // Animatable
    void DeleteThis() override {}  // dies with its object
    void GetClassName(TSTR& s) override { s = kName; }
    SClass_ID SuperClassID() override { return PARAMETER_BLOCK_CLASS_ID; }
    int NumSubs() override { return count_; }
    Animatable* SubAnim(int i) override { return control(i); }
    TSTR SubAnimName(int i) override { return has(i) ? TSTR(definitions_[i].name) : TSTR(); }
    /// FALSE for anything but a float controller. Recorded while holding.
    BOOL AssignController(Animatable* control, int subAnim) override;
    int SubNumToRefNum(int subNum) override { return has(subNum) ? subNum : -1; }
    Interval GetTimeRange(DWORD flags) override;

    // For the object.
    int count() const { return count_; }
    bool has(int i) const { return i >= 0 && i < count_; }
    Control* control(int i) const { return has(i) ? controls_[static_cast<size_t>(i)] : nullptr; }
    /// A target that is no float controller is taken for null.
    void setControl(int i, RefTargetHandle target);
    /// Gives every parameter a default controller with its initial value. Never recorded.
    void makeControls();
    /// Gives the parameters clones of the controllers of `from`, which has as many. Never recorded.
    void cloneControls(const ParameterGroup& from, RemapDir& remap);
    /// Narrows `valid`. Not-finite values of foreign controllers count as the initial one.
    float value(int i, TimeValue t, Interval& valid) const;
    /// Does nothing without a controller.
    void setValue(int i, TimeValue t, float value);

  private:
    void adopt(int i, RefTargetHandle control);

    ReferenceTarget& owner_;
    const ParameterDefinition* definitions_;
    int count_;
    std::array<Control*, kMost> controls_{};
};

}  // namespace maxhost
