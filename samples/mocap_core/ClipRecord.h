#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "util/xml/Element.h"

namespace qvo::zmx::mocap {

/// What a scene remembers of a clip that was loaded into it:
///
///     <clip frameTime=".." frames=".." metresPerUnit=".." multiplier=".." userRate="..">
///         <name>walk</name>
///         <path>/clips/walk.bvh</path>
///         <joint>Hips</joint> ...
///     </clip>
///
/// Names and paths are contents, not attributes, because an attribute value with a ">" does not read back.
struct ClipRecord {
    std::string name;                 ///< unique in the scene; first part of the nodes' host names
    std::string path;                 ///< where the clip was read from
    std::size_t frames = 0;           ///< clip frames
    double frameTime = 0.0;           ///< seconds between clip frames, as printed in the clip
    double metresPerUnit = 0.0;       ///< meters per clip unit
    int multiplier = 1;               ///< frame-rate multiplier that the keys were written with
    double userRate = 0.0;            ///< the host's frame rate then, without the multiplier
    std::vector<std::string> joints;  ///< in the clip's order

    util::xml::Element toElement() const;

    /// Nothing when `element` is not such a record or holds an impossible number.
    static std::optional<ClipRecord> fromElement(const util::xml::Element& element);
};

}  // namespace qvo::zmx::mocap
