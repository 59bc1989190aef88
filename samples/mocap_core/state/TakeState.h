#pragma once

#include <map>
#include <optional>
#include <string>

#include "samples/mocap_core/state/TakeRecord.h"
#include "util/xml/Element.h"

namespace qvo::zmx::mocap {

/// A take as the scene keeps it: a tool "mocap take", packed since it names every joint, and below it a tool
/// for each clip, prop and camera, in this order. The take's unique name is its id; the others' names start
/// with it.
///
///     <ZMK_Plugin type="mocap take" multiplier="4" userRate="30">
///         <name>id</name> <label>walk</label>
///         <joint> <name>Hips</name> <object>walk_Hips</object> </joint> ...
///     </ZMK_Plugin>
///     <ZMK_Plugin type="mocap clip" firstTick="0" frameTime="0.0083333" ...> <path>walk.bvh</path> ...
///     <ZMK_Plugin type="mocap prop"> <label>hat</label> <object>walk_hat</object> <path>hat.obj</path>
///         <joint>Head</joint> ...
///     <ZMK_Plugin type="mocap camera"> <label>Camera01</label> <object>Camera01</object> ...
///
/// "object" is the node's host name at the time; it is missing where the node was gone.
struct TakeState {
    TakeRecord record;
    std::map<std::string, std::string> objects;  ///< host name of the take's nodes, by their names

    /// Appends the "masternode" elements.
    void writeTo(util::xml::Element& masternodes) const;

    /// Everything but the id, to be compared.
    std::string text() const;

    /// Reads a gathered take with its child tools. Nothing without an id or any joint; what else is damaged
    /// or unknown is left out, and the log names it.
    static std::optional<TakeState> readFrom(const util::xml::Element& tool);

    /// True for a tool that readFrom is meant for.
    static bool isTake(const util::xml::Element& element);
};

}  // namespace qvo::zmx::mocap
