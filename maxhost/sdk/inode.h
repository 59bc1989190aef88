#pragma once

#include "control.h"
#include "object.h"

class Mtl;

/// A node of the scene graph. Matrices are in world space, system units, unless said otherwise.
/// While holding, the changes of name, link, visibility, wire colour, user properties, controller and object
/// are recorded. Implemented by the host only.
class CoreExport INode : public ReferenceTarget {
  public:
    SClass_ID SuperClassID() override { return BASENODE_CLASS_ID; }

    /// The host's own text, valid until the name changes.
    virtual TCHAR* GetName() = 0;
    virtual void SetName(TCHAR* s) = 0;

    /// The root node for a top-level node, null for the root.
    virtual INode* GetParentNode() = 0;
    virtual int NumberOfChildren() = 0;
    /// Null for an index out of range.
    virtual INode* GetChildNode(int i) = 0;
    virtual int IsRootNode() = 0;
    /// Makes `node` the last child of this one; with `keepPos` its world transform stays. Loops are refused.
    virtual void AttachChild(INode* node, int keepPos = 1) = 0;
    /// Makes this node the last child of the root.
    virtual void Detach(TimeValue t, int keepPos = 1) = 0;

    /// `valid`, when given, is narrowed to the validity of the result.
    virtual Matrix3 GetNodeTM(TimeValue t, Interval* valid = nullptr) = 0;
    virtual void SetNodeTM(TimeValue t, Matrix3& tm) = 0;
    /// Object offset, then node transform.
    virtual Matrix3 GetObjectTM(TimeValue t, Interval* valid = nullptr) = 0;
    virtual Matrix3 GetObjTMAfterWSM(TimeValue t, Interval* valid = nullptr) = 0;
    virtual Matrix3 GetObjTMBeforeWSM(TimeValue t, Interval* valid = nullptr) = 0;
    /// The identity below the root.
    virtual Matrix3 GetParentTM(TimeValue t) = 0;

    virtual Control* GetTMController() = 0;
    virtual BOOL SetTMController(Control* control) = 0;
    /// Null for the root.
    virtual Object* GetObjectRef() = 0;
    virtual void SetObjectRef(Object* obj) = 0;
    /// The result belongs to the host; copy it and do not keep the object across a change.
    virtual const ObjectState& EvalWorldState(TimeValue t, BOOL evalHidden = TRUE) = 0;

    virtual void Hide(BOOL onOff) = 0;
    virtual int IsHidden(DWORD hflags = 0, BOOL forRenderer = FALSE) = 0;
    virtual int Selected() = 0;
    virtual int IsGroupHead() = 0;
    virtual int IsGroupMember() = 0;
    virtual BOOL IsFrozen() = 0;
    /// 0x00BBGGRR.
    virtual void SetWireColor(DWORD color) = 0;
    virtual DWORD GetWireColor() = 0;

    /// Unique in the scene; kept by save and open.
    virtual ULONG GetHandle() = 0;

    /// User properties: lines `key = value` in one text buffer, CR LF between them; keys compare without
    /// regard to case. A value ends with its line, so text with line breaks does not come back whole.
    virtual BOOL UserPropExists(const TSTR& key) = 0;
    virtual BOOL GetUserPropString(const TSTR& key, TSTR& string) = 0;
    virtual void SetUserPropString(const TSTR& key, const TSTR& string) = 0;
    virtual void GetUserPropBuffer(TSTR& buf) = 0;
    virtual void SetUserPropBuffer(const TSTR& buf) = 0;

    /// May be null.
    virtual Material* Mtls() = 0;
    virtual int NumMtls() = 0;
    virtual Mtl* GetMtl() = 0;

    /// Deletes this node from the scene.
    virtual void Delete(TimeValue t, int keepChildPos) = 0;

  protected:
    INode() = default;
    ~INode() override = default;
};

class INodeTab : public Tab<INode*> {
  public:
    /// Adds the node unless it is in the list already.
    void AppendNode(INode* node) {
        for (int i = 0; i < Count(); ++i)
            if ((*this)[i] == node) return;
        Append(1, &node);
    }
};
