#pragma once

#include <max.h>

#include <string>
#include <vector>

#include "maxhost/src/scene/ChildList.h"
#include "maxhost/src/scene/UserProperties.h"

namespace maxhost {

class Scene;

/// A node of the scene graph. Reference 0 is the transform controller, reference 1 the object.
///
/// The world transform is cached for the interval in which it holds. A node whose cache is empty has only
/// descendants with empty caches, so that invalidating stops at such nodes and a bake that goes frame by
/// frame, parents first, pays a constant cost for each set. No operation recurses with the depth of the
/// hierarchy.
///
/// Nodes are made and deleted by their scene. A deleted node that undo can bring back is still there, without
/// references, outside the hierarchy and unknown to the scene.
class CoreExport Node final : public INode {
  public:
    enum Flag : DWORD { kHidden = 1, kFrozen = 2, kGroupHead = 4, kGroupMember = 8 };
    static constexpr DWORD kAllFlags = kHidden | kFrozen | kGroupHead | kGroupMember;

    /// The parent and the place among its children.
    struct Link {
        Node* parent = nullptr;
        int index = 0;
    };

    Node(Scene& scene, ULONG handle, const std::string& name);

    // ---- INode ----
    TCHAR* GetName() override { return name_.data(); }
    void SetName(TCHAR* s) override;
    INode* GetParentNode() override { return parent_; }
    int NumberOfChildren() override { return children_.size(); }
    INode* GetChildNode(int i) override;
    int IsRootNode() override { return isRoot() ? 1 : 0; }
    void AttachChild(INode* node, int keepPos = 1) override;
    void Detach(TimeValue t, int keepPos = 1) override;

    Matrix3 GetNodeTM(TimeValue t, Interval* valid = nullptr) override;
    void SetNodeTM(TimeValue t, Matrix3& tm) override;
    /// The pivot cannot be moved in this host, so the three object transforms are the node transform.
    Matrix3 GetObjectTM(TimeValue t, Interval* valid = nullptr) override { return GetNodeTM(t, valid); }
    Matrix3 GetObjTMAfterWSM(TimeValue t, Interval* valid = nullptr) override { return GetNodeTM(t, valid); }
    Matrix3 GetObjTMBeforeWSM(TimeValue t, Interval* valid = nullptr) override { return GetNodeTM(t, valid); }
    Matrix3 GetParentTM(TimeValue t) override;

    Control* GetTMController() override { return control_; }
    BOOL SetTMController(Control* control) override;
    Object* GetObjectRef() override { return object_; }
    void SetObjectRef(Object* obj) override;
    const ObjectState& EvalWorldState(TimeValue t, BOOL evalHidden = TRUE) override;

    /// Hiding takes the node out of the selection.
    void Hide(BOOL onOff) override;
    int IsHidden(DWORD hflags = 0, BOOL forRenderer = FALSE) override;
    int Selected() override { return selected_ ? 1 : 0; }
    int IsGroupHead() override { return has(kGroupHead) ? 1 : 0; }
    int IsGroupMember() override { return has(kGroupMember) ? 1 : 0; }
    BOOL IsFrozen() override { return has(kFrozen) ? TRUE : FALSE; }
    void SetWireColor(DWORD color) override;
    DWORD GetWireColor() override { return wireColor_; }
    ULONG GetHandle() override { return handle_; }

    BOOL UserPropExists(const TSTR& key) override;
    BOOL GetUserPropString(const TSTR& key, TSTR& string) override;
    void SetUserPropString(const TSTR& key, const TSTR& string) override;
    void GetUserPropBuffer(TSTR& buf) override;
    void SetUserPropBuffer(const TSTR& buf) override;

    Material* Mtls() override { return nullptr; }
    int NumMtls() override { return 0; }
    Mtl* GetMtl() override { return nullptr; }
    void Delete(TimeValue t, int keepChildPos) override;

    // ---- references and tracks ----
    RefResult NotifyRefChanged(Interval changeInt, RefTargetHandle hTarget, PartID& partID,
                               RefMessage message) override;
    int NumRefs() override { return 2; }
    RefTargetHandle GetReference(int i) override;
    void SetReference(int i, RefTargetHandle target) override;
    /// Nodes die by deletion commands, not by losing their last dependent.
    RefResult AutoDelete() override { return REF_SUCCEED; }
    void DeleteThis() override { delete this; }
    void GetClassName(TSTR& s) override { s = _T("Node"); }
    Class_ID ClassID() override { return Class_ID(BASENODE_CLASS_ID, 0); }
    int NumSubs() override { return 2; }
    Animatable* SubAnim(int i) override;
    TSTR SubAnimName(int i) override;
    BOOL AssignController(Animatable* control, int subAnim) override;
    int SubNumToRefNum(int subNum) override { return subNum; }

    // ---- the host's own side ----
    bool isRoot() const;
    Scene& scene() { return scene_; }
    bool inScene() const { return inScene_; }
    Node* parent() { return parent_; }
    const std::string& name() const { return name_; }
    const ChildList& children() const { return children_; }
    bool has(Flag flag) const { return (flags_ & flag) != 0; }
    DWORD flags() const { return flags_; }
    /// Recorded while holding.
    void setFlag(Flag flag, bool on);
    /// Whether this node is `node` or one of its ancestors. Linear in the depth of `node`; constant when this
    /// node has no children.
    bool isAncestorOrSelf(const Node& node) const;
    Link link();

    // Setting without recording, for undo records, the scene and the file reader.
    void applyName(const std::string& name);
    void applyFlags(const DWORD& flags);
    void applyWireColor(const DWORD& color) { wireColor_ = color; }
    void applyUserProperties(const std::string& text) { properties_.setText(text); }
    /// Moves the node to another place of the hierarchy; null takes it out. Local values stay.
    void applyLink(const Link& link);
    const std::string& userProperties() const { return properties_.text(); }

  private:
    friend class Scene;
    friend class Selection;

    ~Node() override = default;

    void moveTo(Node& newParent, TimeValue t, bool keepPlace);
    void changeUserProperties(const UserProperties& changed);
    int childIndex(Node& child);
    void invalidateTransforms();
    void evaluateTransform(TimeValue t, const Matrix3& parentTM, const Interval& parentValid);

    Scene& scene_;
    const ULONG handle_;
    bool inScene_ = false;
    bool selected_ = false;
    std::string name_;
    DWORD flags_ = 0;
    DWORD wireColor_ = 0;
    UserProperties properties_;

    Node* parent_ = nullptr;
    ChildList children_;
    int lastIndex_ = 0;  ///< place among the siblings when it was last known; where a search begins

    Control* control_ = nullptr;
    Object* object_ = nullptr;
    ObjectState state_;

    Matrix3 worldTM_{1};
    Interval worldValid_;  ///< empty: not evaluated
};

}  // namespace maxhost
