#pragma once

#include <hold.h>

#include "maxhost/src/objects/ParameterGroup.h"

namespace maxhost {

/// An object with animatable numbers, which are its references and the tracks of its one sub-animatable, the
/// group "Parameters".
template <class Base>
class Parametric : public Base {
  public:
    // Animatable
    void DeleteThis() override {
        {
            const HoldSuspend suspend;
            this->DeleteAllRefsFromMe();
        }
        delete this;
    }
    int NumSubs() override { return 1; }
    Animatable* SubAnim(int i) override { return i == 0 ? &parameters_ : nullptr; }
    TSTR SubAnimName(int i) override { return i == 0 ? TSTR(ParameterGroup::kName) : TSTR(); }

    // ReferenceMaker
    int NumRefs() override { return parameters_.count(); }
    RefTargetHandle GetReference(int i) override { return parameters_.control(i); }
    void SetReference(int i, RefTargetHandle target) override { parameters_.setControl(i, target); }
    RefResult NotifyRefChanged(Interval, RefTargetHandle, PartID& partID, RefMessage message) override {
        // What moves a controller changes the object's shape.
        if (message == REFMSG_CHANGE) partID |= PART_GEOM | PART_TOPO;
        return REF_SUCCEED;
    }

    // Object
    Interval ObjectValidity(TimeValue t) override {
        Interval valid = FOREVER;
        for (int i = 0; i < parameters_.count(); ++i)
            parameters_.value(i, t, valid);
        return valid;
    }

  protected:
    Parametric(const ParameterDefinition* definitions, int count, bool withControls)
        : parameters_(*this, definitions, count) {
        if (withControls) parameters_.makeControls();
    }
    ~Parametric() override = default;

    ParameterGroup& parameters() { return parameters_; }

  private:
    ParameterGroup parameters_;
};

}  // namespace maxhost
