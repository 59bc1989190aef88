#include "samples/mocap_core/SkeletonNodes.h"

#include <stdexcept>

namespace qvo::zmx::mocap {

namespace {

void show(core::CoreNode& node, const JointLook& look, std::size_t joint) {
    core::CoreNode::Snapshot_Helper* const helper = node.acquireHelperSnapshot();
    if (!helper) return;  // a host whose helpers look as they like
    const Color color = look.color(joint);
    helper->setMesh(look.shape(joint));
    helper->setColor(color.red, color.green, color.blue);
    helper->setWireframe(look.bones() == Bones::edges);
    helper->setBackfaceCulling(true);
    node.releaseHelperSnapshot(helper);
}

}  // namespace

std::vector<core::CoreNode*> skeletonNodes(core::AdaptorInterface& adaptor, Take& take, const Clip& clip,
                                           double metresPerUnit, Bones bones) {
    const JointLook look(clip, metresPerUnit, bones);
    std::vector<core::CoreNode*> nodes;
    nodes.reserve(clip.joints.size());
    for (const Joint& joint : clip.joints) {
        core::CoreNode* node = take.node(joint.name);
        if (!node) {
            core::CoreNode* const parent =
                joint.parent < 0 ? nullptr : nodes[static_cast<std::size_t>(joint.parent)];
            node = adaptor.createHelperNode(&take, joint.name, parent, &take);
            if (!node) throw std::runtime_error("the host made no node for joint \"" + joint.name + "\"");
            take.addNode(joint.name, *node);
            show(*node, look, nodes.size());
        }
        nodes.push_back(node);
    }
    return nodes;
}

}  // namespace qvo::zmx::mocap
