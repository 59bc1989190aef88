#include "samples/mocap_core/TakeNames.h"

#include <algorithm>
#include <vector>

namespace qvo::zmx::mocap {

namespace {

/// What the adaptor calls a node of a take when it makes it.
std::string hostName(std::string take, const std::string& node) {
    return take.append("_").append(node);
}

}  // namespace

void renameNodes(Take& take, const std::string& former) {
    for (const std::string& name : take.record().nodeNames()) {
        core::CoreNode* const node = take.node(name);
        if (node && node->getName() == hostName(former, name))
            node->setName(hostName(take.record().name, name));
    }
}

std::string uniqueNodeName(const Take& take, const std::string& wanted) {
    const std::vector<std::string> taken = take.record().nodeNames();
    std::string name = wanted;
    for (int number = 2; std::find(taken.begin(), taken.end(), name) != taken.end(); ++number)
        name = wanted + "-" + std::to_string(number);
    return name;
}

}  // namespace qvo::zmx::mocap
