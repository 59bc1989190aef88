#pragma once

#include "adaptor/max/nodes/CMAXNode.h"

namespace qvo::zmx::adaptor::max {

class CustomHelperObject;

/// The look of a host node: its shape, colour and way of drawing. Colour reaches every node's wire colour;
/// the rest is for the plug-in's own helper objects, and the shape for triangle objects too.
class CMAXNode::CMAXSnapshot_Helper : public core::CoreNode::Snapshot_Helper {
  public:
    explicit CMAXSnapshot_Helper(CMAXNode& from) : wrapper(&from) {}

    void setMesh(const util::CMesh& mesh) override;
    void setColor(float red, float green, float blue) override;
    void setWireframe(bool on) override;
    void setBackfaceCulling(bool on) override;

    CMAXNode* wrapper;  ///< null once the wrapper is gone
    bool acquired = false;
    Object* object = nullptr;  ///< the node's object at the acquisition; not owned
    HostNodeRef node;

  private:
    /// The object, or null when it is not the node's any more.
    Object* usableObject() const { return node.ifStillItsObject(object); }

    /// The object if it is the plug-in's own helper, else null.
    CustomHelperObject* customHelper() const;
};

/// A colour as the host packs it, red in the low byte. Components from 0 to 1; each is multiplied by 255 and
/// truncated, and only its low 8 bits count: values above 1 wrap around. NaN counts as 0.
DWORD packedColor(float red, float green, float blue);

}  // namespace qvo::zmx::adaptor::max
