#include "apps/headless/Joint.h"

#include <plugapi.h>

#include <set>

namespace headless {

namespace {

/// Calls `visit` for the controller and all that it is made of: a controller of several parts has its keys
/// there.
template <class Visit>
void forEachTrack(Animatable* track, const Visit& visit) {
    if (track == nullptr) return;
    visit(*track);
    for (int i = 0; i < track->NumSubs(); ++i)
        forEachTrack(track->SubAnim(i), visit);
}

template <class Visit>
void forEachTrack(const std::vector<Joint>& joints, const Visit& visit) {
    for (const Joint& joint : joints)
        forEachTrack(joint.node->GetTMController(), visit);
}

}  // namespace

std::vector<Joint> joints(Interface& host) {
    std::vector<INode*> nodes{host.GetRootNode()};
    std::vector<Joint> found;
    for (std::size_t at = 0; at < nodes.size(); ++at) {
        INode* node = nodes[at];
        Object* object = node->GetObjectRef();
        if (object != nullptr && object->SuperClassID() == HELPER_CLASS_ID)
            found.push_back({node->GetName(), node});
        for (int i = 0; i < node->NumberOfChildren(); ++i)
            nodes.push_back(node->GetChildNode(i));
    }
    return found;
}

std::vector<TimeValue> keyTimes(const std::vector<Joint>& joints) {
    std::set<TimeValue> times;
    forEachTrack(joints, [&](Animatable& track) {
        for (int i = 0; i < track.NumKeys(); ++i)
            times.insert(track.GetKeyTime(i));
    });
    return {times.begin(), times.end()};
}

std::size_t keyCount(const std::vector<Joint>& joints) {
    std::size_t count = 0;
    forEachTrack(joints, [&](Animatable& track) {
        if (track.NumKeys() > 0) count += static_cast<std::size_t>(track.NumKeys());
    });
    return count;
}

}  // namespace headless
