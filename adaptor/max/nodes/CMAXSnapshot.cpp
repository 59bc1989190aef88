#include "adaptor/max/nodes/CMAXSnapshot.h"

#include "adaptor/max/nodes/HostSpace.h"
#include "adaptor/max/services/Boundary.h"
#include "util/Log.h"

namespace qvo::zmx::adaptor::max {

Matrix4 CMAXNode::CMAXSnapshot::reference(INode& node) const {
    INode* const parent = node.GetParentNode();
    return parent && !parent->IsRootNode() ? widened(parent->GetNodeTM(ticks)) : hostFromCore();
}

int CMAXNode::CMAXSnapshot::setHostTransform(INode& node, const Matrix4& transform) const {
    Matrix3 hostTransform = narrowed(transform);
    if (!isFinite(hostTransform)) {
        util::logLine(util::Log::kWarning, "Refused a transform that is not finite for ", node.GetName());
        return 0;
    }
    node.SetNodeTM(ticks, hostTransform);
    return node.NotifyDependents(FOREVER, PART_ALL, REFMSG_CHANGE, NOTIFY_ALL, TRUE);
}

Matrix4 CMAXNode::CMAXSnapshot::getWorldTransform() {
    return guarded("getWorldTransform", kIdentityMatrix4, [&] {
        INode* const node = hostNode();
        return node ? widened(node->GetNodeTM(ticks)) * coreFromHost() : kIdentityMatrix4;
    });
}

int CMAXNode::CMAXSnapshot::setWorldTransform(const Matrix4& transform) {
    return guarded("setWorldTransform", 0, [&] {
        INode* const node = hostNode();
        return node ? setHostTransform(*node, transform * hostFromCore()) : 0;
    });
}

Matrix4 CMAXNode::CMAXSnapshot::getLocalTransform() {
    return guarded("getLocalTransform", kIdentityMatrix4, [&] {
        INode* const node = hostNode();
        if (!node) return kIdentityMatrix4;
        const Matrix4 world = widened(node->GetNodeTM(ticks));
        const auto fromReference = affineInverse(reference(*node));
        return fromReference ? world * *fromReference
                             : world;  // a collapsed parent leaves the world transform
    });
}

int CMAXNode::CMAXSnapshot::setLocalTransform(const Matrix4& transform) {
    return guarded("setLocalTransform", 0, [&] {
        INode* const node = hostNode();
        return node ? setHostTransform(*node, transform * reference(*node)) : 0;
    });
}

}  // namespace qvo::zmx::adaptor::max
