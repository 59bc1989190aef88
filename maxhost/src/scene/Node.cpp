#include "maxhost/src/scene/Node.h"

#include <notify.h>

#include "maxhost/src/scene/NodeRestore.h"
#include "maxhost/src/scene/Scene.h"
#include "maxhost/src/scene/ShownSuperClass.h"

namespace maxhost {

Node::Node(Scene& scene, ULONG handle, const std::string& name)
    : scene_(scene), handle_(handle), name_(name) {}

bool Node::isRoot() const {
    return &scene_.root() == this;
}

void Node::SetName(TCHAR* s) {
    const std::string before = name_;
    const std::string after = s == nullptr ? "" : s;
    if (isRoot() || after == before) return;
    recordNodeChange(*this, &Node::applyName, before, after);
    applyName(after);
}

void Node::applyName(const std::string& name) {
    std::string before = name_;
    if (inScene_) scene_.forgetName(*this);
    name_ = name;
    if (inScene_) scene_.noteName(*this);
    std::string after = name;
    NameChange change{before.data(), after.data()};
    BroadcastNotification(NOTIFY_NODE_RENAMED, &change);
}

void Node::setFlag(Flag flag, bool on) {
    const DWORD after = on ? flags_ | flag : flags_ & ~static_cast<DWORD>(flag);
    if (after == flags_ || isRoot()) return;
    recordNodeChange(*this, &Node::applyFlags, flags_, after);
    applyFlags(after);
}

void Node::applyFlags(const DWORD& flags) {
    flags_ = flags;
}

void Node::Hide(BOOL onOff) {
    if (onOff != FALSE && selected_) scene_.selection().remove({this});
    setFlag(kHidden, onOff != FALSE);
}

int Node::IsHidden(DWORD /*hflags*/, BOOL /*forRenderer*/) {
    return has(kHidden) ? 1 : 0;
}

void Node::SetWireColor(DWORD color) {
    if (color == wireColor_) return;
    recordNodeChange(*this, &Node::applyWireColor, wireColor_, color);
    applyWireColor(color);
}

BOOL Node::UserPropExists(const TSTR& key) {
    return properties_.find(key.data(), nullptr) ? TRUE : FALSE;
}

BOOL Node::GetUserPropString(const TSTR& key, TSTR& string) {
    std::string value;
    if (!properties_.find(key.data(), &value)) return FALSE;
    string = value.c_str();
    return TRUE;
}

void Node::SetUserPropString(const TSTR& key, const TSTR& string) {
    UserProperties changed = properties_;
    changed.set(key.data(), string.data());
    changeUserProperties(changed);
}

void Node::GetUserPropBuffer(TSTR& buf) {
    buf = properties_.text().c_str();
}

void Node::SetUserPropBuffer(const TSTR& buf) {
    UserProperties changed;
    changed.setText(buf.data());
    changeUserProperties(changed);
}

void Node::changeUserProperties(const UserProperties& changed) {
    if (changed.text() == properties_.text()) return;
    recordNodeChange(*this, &Node::applyUserProperties, properties_.text(), changed.text());
    properties_ = changed;
}

BOOL Node::SetTMController(Control* control) {
    if (isRoot() || (control != nullptr && control->SuperClassID() != CTRL_MATRIX3_CLASS_ID)) return FALSE;
    return ReplaceReference(0, control) == REF_SUCCEED ? TRUE : FALSE;
}

void Node::SetObjectRef(Object* obj) {
    if (!isRoot()) ReplaceReference(1, obj);
}

const ObjectState& Node::EvalWorldState(TimeValue t, BOOL /*evalHidden*/) {
    state_ = object_ == nullptr ? ObjectState() : object_->Eval(t);
    return state_;
}

RefResult Node::NotifyRefChanged(Interval /*changeInt*/, RefTargetHandle hTarget, PartID& /*partID*/,
                                 RefMessage message) {
    if (message == REFMSG_CHANGE && hTarget != object_) invalidateTransforms();
    return REF_SUCCEED;
}

RefTargetHandle Node::GetReference(int i) {
    if (i == 0) return control_;
    return i == 1 ? object_ : nullptr;
}

void Node::SetReference(int i, RefTargetHandle target) {
    // A target of another kind is taken for null.
    const SClass_ID kind = target == nullptr ? 0 : target->SuperClassID();
    if (i == 0) {
        control_ = kind == CTRL_MATRIX3_CLASS_ID ? static_cast<Control*>(target) : nullptr;
        invalidateTransforms();
        if (inScene_ && scene_.observer() != nullptr) scene_.observer()->controllerReplaced();
    } else if (i == 1) {
        object_ = isShownSuperClass(kind) ? static_cast<Object*>(target) : nullptr;
    }
}

Animatable* Node::SubAnim(int i) {
    return GetReference(i);
}

TSTR Node::SubAnimName(int i) {
    if (i == 0) return TSTR(_T("Transform"));
    if (i != 1 || object_ == nullptr) return TSTR();
    TSTR name;
    object_->GetClassName(name);
    return name;
}

BOOL Node::AssignController(Animatable* control, int subAnim) {
    if (subAnim != 0 || control == nullptr || control->SuperClassID() != CTRL_MATRIX3_CLASS_ID) return FALSE;
    return SetTMController(static_cast<Control*>(control));
}

}  // namespace maxhost
