#include "adaptor/max/Boundary.h"
#include "adaptor/max/HoldScope.h"
#include "adaptor/max/nodes/CMAXNode.h"
#include "adaptor/max/nodes/SelectionBatch.h"
#include "util/Log.h"

/// A node's place in the scene: visibility, selection, parent and children, copies.
namespace qvo::zmx::adaptor::max {

using util::Log;
using util::logLine;
using util::logValue;

// Visibility and selection

void CMAXNode::show() {
    guarded("show", [&] {
        if (INode* const node = hostNode()) node->Hide(FALSE);
    });
}

void CMAXNode::hide() {
    guarded("hide", [&] {
        if (INode* const node = hostNode()) node->Hide(TRUE);
    });
}

bool CMAXNode::isVisible() {
    return guarded("isVisible", false, [&] {
        INode* const node = hostNode();
        return node && node->IsHidden(0, FALSE) == 0;
    });
}

void CMAXNode::select() {
    guarded("select", [&] {
        INode* const node = hostNode();
        if (!node) return;
        if (SelectionBatch::isOpen()) {
            GetCOREInterface()->SelectNode(node, 0);
            return;
        }
        const HoldScope hold("Select");
        GetCOREInterface()->SelectNode(node, 1);
    });
}

// Hierarchy

core::CoreNode* CMAXNode::getParent() {
    return guarded<core::CoreNode*>("getParent", nullptr, [&] {
        INode* const node = hostNode();
        INode* const parent = node ? parentOf(*node) : nullptr;
        return parent ? new CMAXNode(this, parent) : nullptr;  // the core's
    });
}

int CMAXNode::numberOfChildren() {
    return guarded("numberOfChildren", 0, [&] {
        INode* const node = hostNode();
        return node ? node->NumberOfChildren() : 0;
    });
}

core::CoreNode* CMAXNode::getChild(int index) {
    return guarded<core::CoreNode*>("getChild", nullptr, [&]() -> core::CoreNode* {
        INode* const node = hostNode();
        if (!node || index < 0 || index >= node->NumberOfChildren()) return nullptr;
        INode* const child = node->GetChildNode(index);
        return child ? new CMAXNode(this, child) : nullptr;  // the core's
    });
}

int CMAXNode::setParent(core::CoreNode* newParent) {
    return guarded("setParent", 0, [&] {
        INode* const node = hostNode();
        if (!node) return 0;
        if (!newParent) {
            node->Detach(0, TRUE);
            return 0;
        }
        Log section("Setting parent for " + getName(), Log::kNotice);
        logValue(section, Log::kNotice, "new parent", newParent->getName());
        INode* const parentNode = of(newParent)->hostNode();
        if (!parentNode) {
            logLine(section, Log::kNotice, "Invalid parent node");
            return 0;
        }
        logLine(section, Log::kNotice, "setting parent...");
        parentNode->AttachChild(node, TRUE);
        logLine(section, Log::kNotice, "parent set");
        return 0;
    });
}

bool CMAXNode::isSameNode(core::CoreNode* other) {
    return guarded("isSameNode", false, [&] {
        const INode* const node = hostNode();
        return node && other && of(other)->hostNode() == node;
    });
}

INode* CMAXNode::cloneHostNode(bool expandHierarchy) {
    INode* node = hostNode();
    if (!node) return nullptr;
    INodeTab originals;
    originals.Append(1, &node);
    Point3 offset(0, 0, 0);
    INodeTab sources;
    INodeTab copies;
    GetCOREInterface()->CloneNodes(originals, offset, expandHierarchy, NODE_COPY, &sources, &copies);
    return copies.Count() > 0 ? copies[0] : nullptr;
}

core::CoreNode* CMAXNode::cloneNode(bool expandHierarchy) {
    return guarded<core::CoreNode*>("cloneNode", nullptr, [&] {
        INode* const copy = cloneHostNode(expandHierarchy);
        return copy ? new CMAXNode(this, copy) : nullptr;  // the core's
    });
}

}  // namespace qvo::zmx::adaptor::max
