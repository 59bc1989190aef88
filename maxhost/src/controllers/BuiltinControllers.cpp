#include "maxhost/src/controllers/BuiltinControllers.h"

#include <iparamb2.h>

#include "maxhost/src/controllers/PrsControl.h"

namespace maxhost {

namespace {

template <class Traits>
class LinearClassDesc : public ClassDesc2 {
  public:
    int IsPublic() override { return 1; }
    void* Create(BOOL) override { return new LinearControl<Traits>; }
    const TCHAR* ClassName() override { return Traits::kName; }
    SClass_ID SuperClassID() override { return Traits::kSuperClass; }
    Class_ID ClassID() override { return Class_ID(Traits::kClass, 0); }
    const TCHAR* Category() override { return _T("Standard"); }
};

class PrsClassDesc : public ClassDesc2 {
  public:
    int IsPublic() override { return 1; }
    void* Create(BOOL loading) override { return new PrsControl(!loading); }
    const TCHAR* ClassName() override { return PrsControl::kName; }
    SClass_ID SuperClassID() override { return CTRL_MATRIX3_CLASS_ID; }
    Class_ID ClassID() override { return Class_ID(PRS_CONTROL_CLASS_ID, 0); }
    const TCHAR* Category() override { return _T("Standard"); }
};

}  // namespace

std::vector<ClassDesc*> builtinControllerClasses() {
    static LinearClassDesc<FloatTraits> linearFloat;
    static LinearClassDesc<PositionTraits> linearPosition;
    static LinearClassDesc<RotationTraits> linearRotation;
    static LinearClassDesc<ScaleTraits> linearScale;
    static PrsClassDesc prs;
    return {&linearFloat, &linearPosition, &linearRotation, &linearScale, &prs};
}

}  // namespace maxhost

Control* NewDefaultFloatController() {
    return new maxhost::LinearControl<maxhost::FloatTraits>;
}
Control* NewDefaultPositionController() {
    return new maxhost::LinearControl<maxhost::PositionTraits>;
}
Control* NewDefaultRotationController() {
    return new maxhost::LinearControl<maxhost::RotationTraits>;
}
Control* NewDefaultScaleController() {
    return new maxhost::LinearControl<maxhost::ScaleTraits>;
}
Control* NewDefaultMatrix3Controller() {
    return new maxhost::PrsControl(true);
}
