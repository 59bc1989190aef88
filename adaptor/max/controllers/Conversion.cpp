#include "adaptor/max/controllers/Conversion.h"

#include <vector>

#include "adaptor/max/Boundary.h"
#include "adaptor/max/ClassIds.h"
#include "adaptor/max/HoldScope.h"
#include "adaptor/max/controllers/AnimateScope.h"
#include "adaptor/max/controllers/KeyValue.h"
#include "adaptor/max/controllers/OwnControl.h"

namespace qvo::zmx::adaptor::max {
namespace {

Control* createHostControl(SClass_ID superClassId, const Class_ID& classId) {
    return static_cast<Control*>(GetCOREInterface()->CreateInstance(superClassId, classId));
}

void setTransform(Control& control, TimeValue t, const Matrix3& local, int commit) {
    SetXFormPacket packet(local);
    control.SetValue(t, &packet, commit, CTRL_ABSOLUTE);
}

void setScalar(Control& control, TimeValue t, float value, int commit) {
    control.SetValue(t, &value, commit, CTRL_ABSOLUTE);
}

void bakeTransform(TransformControl& from, Control& to) {
    AnimateScope animate;
    setTransform(to, 0, from.currentKey().value, 0);
    animate.makeKeys();
    for (int i = 0; i < from.keys().size(); ++i) {
        const TimeValue t = from.keys()[i].time;
        setTransform(to, t, KeyValue<Matrix3>::of(from, t), 1);
    }
}

/// Unlike a transform, a parameter whose first key comes after time 0 gets a key there, which pins its value.
void bakeScalar(ScalarControl& from, Control& to) {
    AnimateScope animate;
    setScalar(to, 0, from.currentKey().value, 0);
    animate.makeKeys();
    if (!from.keys().empty() && from.keys().first().time > 0)
        setScalar(to, 0, KeyValue<float>::of(from, 0), 1);
    for (int i = 0; i < from.keys().size(); ++i) {
        const TimeValue t = from.keys()[i].time;
        setScalar(to, t, KeyValue<float>::of(from, t), 1);
    }
}

/// The motion panel shows another controller only after it has been left. Leaving it ends the page of
/// `controller`, hence the copy.
void refreshMotionPanel(const TransformControl& controller) {
    Interface* const ip = controller.pageInterface();
    if (!ip) return;
    ip->SetCommandPanelTaskMode(TASK_MODE_UTILITY);
    ip->SetCommandPanelTaskMode(TASK_MODE_MOTION);
}

/// Puts a controller of the host's class, filled by `bake`, in place of `control`, inside a hold. `control`
/// must not be used afterwards.
template <typename Bake>
void replaceControl(Control& control, const char* undoName, const Class_ID& hostClass, Bake bake) {
    guarded(undoName, [&] {
        if (!control.HasDependents()) return;
        HoldScope hold(undoName);
        Control* const replacement = createHostControl(control.SuperClassID(), hostClass);
        if (!replacement) {
            util::logLine(util::Log::kError, undoName, ": the host cannot make the new controller");
            hold.cancel();
            return;
        }
        try {
            bake(*replacement);
        } catch (...) {
            hold.cancel();  // first: what was recorded refers to the replacement
            replacement->DeleteMe();
            throw;
        }
        replacement->TransferReferences(&control, TRUE);
    });
}

template <typename Controller>
void convertAll(void (*convert)(Controller&)) {
    using Base = BaseControl<decltype(Controller::Key::value)>;
    guarded("Convert all controllers", [&] {
        // By reference that notices death: a conversion can end the life of others, through the undo list.
        std::vector<LiveRef<Base>> controllers;
        for (auto* entry = ControlListEntry<Controller>::last(); entry; entry = entry->previous())
            controllers.push_back(entry->controller().liveRef());
        for (const LiveRef<Base>& controller : controllers)
            if (Base* const alive = controller.get()) convert(static_cast<Controller&>(*alive));
    });
}

bool isModified(Object& object) {
    return object.SuperClassID() == DERIVOB_CLASS_ID || object.SuperClassID() == WSM_DERIVOB_CLASS_ID;
}

/// `target` as an object, null when it is something else. By its super class: an object of the host's may
/// lack what a dynamic cast needs.
Object* asObject(ReferenceTarget* target) {
    switch (target ? target->SuperClassID() : 0) {
        case DERIVOB_CLASS_ID:
        case WSM_DERIVOB_CLASS_ID:
        case GEOMOBJECT_CLASS_ID:
        case CAMERA_CLASS_ID:
        case LIGHT_CLASS_ID:
        case SHAPE_CLASS_ID:
        case HELPER_CLASS_ID:
        case SYSTEM_CLASS_ID:
        case WSM_OBJECT_CLASS_ID:
            return static_cast<Object*>(target);
        default:
            return nullptr;
    }
}

/// Below its modifiers a modified object refers to the object that it modifies.
Object* baseObject(INode& node) {
    Object* object = node.GetObjectRef();
    while (object && isModified(*object)) {
        Object* below = nullptr;
        for (int i = 0; i < object->NumRefs() && !below; ++i)
            below = asObject(object->GetReference(i));
        object = below;
    }
    return object;
}

void convertToScalar(ScalarControl& controller) {
    const Class_ID linear(LININTERP_FLOAT_CLASS_ID, 0);
    replaceControl(controller, "Convert to Scalar controller", linear,
                   [&](Control& replacement) { bakeScalar(controller, replacement); });
}

void convertScalarsIn(Animatable& group) {
    for (int i = 0; i < group.NumSubs(); ++i)
        if (ScalarControl* const scalar = ownScalarControl(group.SubAnim(i))) convertToScalar(*scalar);
}

}  // namespace

void convertToPRS(TransformControl& controller) {
    const Class_ID prs(PRS_CONTROL_CLASS_ID, 0);
    replaceControl(controller, "Convert to PRS controller", prs, [&](Control& replacement) {
        bakeTransform(controller, replacement);
        refreshMotionPanel(controller);
    });
}

void convertAllTransformControls() {
    convertAll(&convertToPRS);
}

void convertAllScalarControls() {
    convertAll(&convertToScalar);
}

bool isTransformControl(Control* control) {
    return ownTransformControl(control) != nullptr;
}

void convertNodeTransform(INode& node) {
    if (TransformControl* const own = ownTransformControl(node.GetTMController())) convertToPRS(*own);
}

void convertNodeScalars(INode& node) {
    Object* const object = baseObject(node);
    if (!object) return;
    for (int i = 0; i < object->NumSubs(); ++i) {
        Animatable* const group = object->SubAnim(i);
        if (group && object->SubAnimName(i) == "Parameters") convertScalarsIn(*group);
    }
}

TransformControl* installTransformControl(INode& node) {
    Control* const former = node.GetTMController();
    if (TransformControl* const present = ownTransformControl(former)) return present;

    Control* const created = createHostControl(CTRL_MATRIX3_CLASS_ID, kTransformControlClassId);
    TransformControl* const control = ownTransformControl(created);
    if (!control) {
        util::logLine(util::Log::kError, "The host cannot make a transform controller");
        if (created) created->DeleteThis();
        return nullptr;
    }
    if (former) control->takeValue(KeyValue<Matrix3>::of(*former, GetCOREInterface()->GetTime()));
    node.SetTMController(control);
    return control;
}

}  // namespace qvo::zmx::adaptor::max
