#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "samples/mocap_core/state/ClipRecord.h"

namespace qvo::zmx::mocap {

/// A model that follows a joint.
struct PropRecord {
    std::string name;   ///< among the take's nodes
    std::string path;   ///< of the model file
    std::string joint;  ///< that it follows
};

/// What a take is, apart from its nodes. Names of joints, props and camera are unique within the take; a
/// node's host name is the take's name, "_" and that name, unless the user renamed it.
struct TakeRecord {
    std::string id;                   ///< tells this take from every other, in this scene and in others
    std::string name;                 ///< unique in the scene; first part of the nodes' host names
    int multiplier = 1;               ///< frame-rate multiplier that the latest keys were written with
    double userRate = 0.0;            ///< the host's frame rate then, without the multiplier; 0: not known
    std::vector<std::string> joints;  ///< in the clips' order
    std::vector<ClipRecord> clips;    ///< one after the other on the time line; at least one
    std::vector<PropRecord> props;
    std::string camera;  ///< that follows the take, empty for none

    /// The first tick after the latest clip.
    std::int64_t nextTick() const { return clips.empty() ? 0 : clips.back().nextTick(); }

    /// The names of all nodes that belong to the take, joints first.
    std::vector<std::string> nodeNames() const;

    /// A text that no other take has: 64 random bits.
    static std::string freshId();
};

}  // namespace qvo::zmx::mocap
