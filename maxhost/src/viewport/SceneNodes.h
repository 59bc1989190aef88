#pragma once

#include <inode.h>

#include <vector>

namespace maxhost {

/// The nodes below `root` that are not hidden, parents before children. Works at any depth.
std::vector<INode*> visibleNodes(INode& root);

/// Whether the node marks a place (a helper, or a node without object) rather than showing geometry, a shape
/// or a camera, which are drawn by their objects alone.
bool isJoint(INode& node);

/// The visible joint that `node` hangs on, null for none.
INode* parentJoint(INode& node);

}  // namespace maxhost
