#include "adaptor/max/nodes/CMAXSnapshot.h"

#include "adaptor/max/Boundary.h"
#include "adaptor/max/nodes/HostSpace.h"
#include "util/Log.h"

namespace qvo::zmx::adaptor::max {

int CMAXNode::CMAXSnapshot::setHostTransform(INode& target, const Matrix4& transform) const {
    Matrix3 hostTransform = narrowed(transform);
    if (!isFinite(hostTransform)) {
        util::logLine(util::Log::kWarning, "Refused a transform that is not finite for ", target.GetName());
        return 0;
    }
    target.SetNodeTM(ticks, hostTransform);
    return target.NotifyDependents(FOREVER, PART_ALL, REFMSG_CHANGE, NOTIFY_ALL, TRUE);
}

Matrix4 CMAXNode::CMAXSnapshot::getWorldTransform() {
    return guarded("getWorldTransform", kIdentityMatrix4, [&] {
        INode* const present = node.get();
        return present ? widened(present->GetNodeTM(ticks)) * coreFromHost() : kIdentityMatrix4;
    });
}

int CMAXNode::CMAXSnapshot::setWorldTransform(const Matrix4& transform) {
    return guarded("setWorldTransform", 0, [&] {
        INode* const present = node.get();
        return present ? setHostTransform(*present, transform * hostFromCore()) : 0;
    });
}

Matrix4 CMAXNode::CMAXSnapshot::getLocalTransform() {
    return guarded("getLocalTransform", kIdentityMatrix4, [&] {
        INode* const present = node.get();
        if (!present) return kIdentityMatrix4;
        const Matrix4 world = widened(present->GetNodeTM(ticks));
        INode* const parent = parentOf(*present);
        if (!parent) return world * coreFromHost();
        const auto fromParent = affineInverse(widened(parent->GetNodeTM(ticks)));
        return fromParent ? world * *fromParent : world;  // a collapsed parent leaves the world transform
    });
}

int CMAXNode::CMAXSnapshot::setLocalTransform(const Matrix4& transform) {
    return guarded("setLocalTransform", 0, [&] {
        INode* const present = node.get();
        if (!present) return 0;
        INode* const parent = parentOf(*present);
        return setHostTransform(*present,
                                transform * (parent ? widened(parent->GetNodeTM(ticks)) : hostFromCore()));
    });
}

}  // namespace qvo::zmx::adaptor::max
