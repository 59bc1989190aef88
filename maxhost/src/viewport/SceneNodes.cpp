#include "maxhost/src/viewport/SceneNodes.h"

#include <plugapi.h>

namespace maxhost {

std::vector<INode*> visibleNodes(INode& root) {
    std::vector<INode*> all{&root}, visible;
    for (std::size_t at = 0; at < all.size(); ++at) {
        if (at > 0 && !all[at]->IsHidden()) visible.push_back(all[at]);
        for (int i = 0; i < all[at]->NumberOfChildren(); ++i)
            all.push_back(all[at]->GetChildNode(i));
    }
    return visible;
}

bool isJoint(INode& node) {
    Object* object = node.GetObjectRef();
    return object == nullptr || object->SuperClassID() == HELPER_CLASS_ID;
}

INode* parentJoint(INode& node) {
    INode* parent = node.GetParentNode();
    const bool drawn = parent != nullptr && !parent->IsRootNode() && !parent->IsHidden() && isJoint(*parent);
    return drawn ? parent : nullptr;
}

}  // namespace maxhost
