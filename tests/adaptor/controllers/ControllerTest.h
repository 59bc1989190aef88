#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "adaptor/max/controllers/ScalarControl.h"
#include "adaptor/max/controllers/TransformControl.h"
#include "adaptor/max/plugin/ScalarControlClassDesc.h"
#include "adaptor/max/plugin/TransformControlClassDesc.h"
#include "maxhost/HeadlessHost.h"

namespace qvo::zmx::test {

using namespace adaptor::max;

/// Refers to one controller, as a node does, keeps it alive and counts the changes that it tells.
class ControllerUser final : public ReferenceMaker {
  public:
    explicit ControllerUser(Control* target) { ReplaceReference(0, target); }

    Control* control = nullptr;
    int changes = 0;

    void DeleteThis() override { delete this; }
    int NumRefs() override { return 1; }
    RefTargetHandle GetReference(int /*i*/) override { return control; }
    void SetReference(int /*i*/, RefTargetHandle target) override { control = static_cast<Control*>(target); }
    RefResult NotifyRefChanged(Interval interval, RefTargetHandle /*target*/, PartID& part,
                               RefMessage message) override {
        if (message == REFMSG_CHANGE && part == PART_ALL && interval == FOREVER) ++changes;
        return REF_SUCCEED;
    }
};

/// A controller in use; it dies with its last user.
template <typename Controller>
class Used {
  public:
    Used() : Used(new Controller) {}
    explicit Used(Controller* controller) : user_(new ControllerUser(controller)) {}

    Controller* operator->() const { return static_cast<Controller*>(user_->control); }
    Controller& operator*() const { return *operator->(); }
    ControllerUser& user() const { return *user_; }
    void end() { user_.reset(); }

  private:
    struct EndUse {
        void operator()(ControllerUser* user) const { user->DeleteMe(); }
    };
    std::unique_ptr<ControllerUser, EndUse> user_;
};

/// Sets keys with the value of their time.
inline void bake(ScalarControl& control, const std::vector<TimeValue>& times) {
    for (const TimeValue t : times)
        control.setKey({0, t, static_cast<float>(t)});
}

/// "time=value" of every key, an asterisk for a selected one.
inline std::string described(const ScalarControl& control) {
    std::ostringstream text;
    const KeyTable<float>& keys = control.keys();
    for (int i = 0; i < keys.size(); ++i)
        text << (i ? " " : "") << keys[i].time << (keys[i].flags ? "*" : "") << '=' << keys[i].value;
    return text.str();
}

inline float valueAt(Control& control, TimeValue t) {
    float value = 0;
    Interval valid = FOREVER;
    control.GetValue(t, &value, valid, CTRL_ABSOLUTE);
    return value;
}

inline Matrix3 worldAt(Control& control, TimeValue t, Matrix3 parent = Matrix3(1)) {
    Interval valid = FOREVER;
    control.GetValue(t, &parent, valid, CTRL_RELATIVE);
    return parent;
}

inline void setValue(Control& control, TimeValue t, float value, GetSetMethod method = CTRL_ABSOLUTE) {
    control.SetValue(t, &value, 1, method);
}

inline void setWorld(Control& control, TimeValue t, const Matrix3& world,
                     const Matrix3& parent = Matrix3(1)) {
    SetXFormPacket packet(world, parent);
    control.SetValue(t, &packet, 1, CTRL_ABSOLUTE);
}

/// Runs `edit` with animate mode on: every value that is set makes a key.
template <typename Edit>
void animated(Edit edit) {
    AnimateOn();
    edit();
    AnimateOff();
}

/// A transform that turns about two axes, scales and moves.
inline Matrix3 pose(float radians, float scale, const Point3& move) {
    Matrix3 matrix = ScaleMatrix(Point3(scale, scale, scale));
    matrix.RotateX(radians / 3);
    matrix.RotateZ(radians);
    matrix.Translate(move);
    return matrix;
}

/// A fresh host that knows the plug-in's controllers. None of them may be left behind.
class ControllerTest : public testing::Test {
  protected:
    ControllerTest() {
        host.registerPluginClass(&transformClass);
        host.registerPluginClass(&scalarClass);
    }
    ~ControllerTest() override {
        host.exit();
        EXPECT_EQ(host.faults(), std::vector<std::string>());
        EXPECT_EQ(ControlListEntry<ScalarControl>::last(), nullptr);
        EXPECT_EQ(ControlListEntry<TransformControl>::last(), nullptr);
    }

    /// Runs `edit` as one undo entry.
    template <typename Edit>
    static void hold(Edit edit) {
        theHold.Begin();
        edit();
        char name[] = "edit";
        theHold.Accept(name);
    }

    TransformControlClassDesc transformClass;
    ScalarControlClassDesc scalarClass;
    maxhost::HeadlessHost host;
};

}  // namespace qvo::zmx::test
