#pragma once

#include <string>

#include "util/xml/Element.h"

/// A tool's state as the adaptor keeps it in the scene and gathers it again. A gathered tool holds its child
/// tools as further "ZMK_Plugin" children.
///
///     <masternode>
///         <ZMK_Plugin type="mocap take" ...><name>unique name</name> ... </ZMK_Plugin>
///         <parent>unique name of the parent tool</parent>
///         <childindex>0</childindex>
///     </masternode>
namespace qvo::zmx::mocap::tool {

inline constexpr char kElement[] = "ZMK_Plugin";

/// A new state of `type`, whose unique name is `name`.
util::xml::Element make(const std::string& type, const std::string& name);

/// True for a tool's state, of any type.
bool isTool(const util::xml::Element& element);

std::string typeOf(const util::xml::Element& tool);
const std::string& nameOf(const util::xml::Element& tool);

/// Packs `state` into a state of one text: Base64 of the compressed block of its XML text. The adaptor
/// unpacks it before it looks at names, so the unique name may be packed too.
util::xml::Element packed(const util::xml::Element& state);

/// Appends a "masternode" with `state` to `masternodes`, which may live in the adaptor. `parent` is empty for
/// a tool at the top level.
void append(util::xml::Element& masternodes, const util::xml::Element& state, const std::string& parent,
            int childIndex);

}  // namespace qvo::zmx::mocap::tool
