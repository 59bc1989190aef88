#pragma once

#include "adaptor/max/Host.h"
#include "util/xml/Element.h"

namespace qvo::zmx::adaptor::max {

/// Numbers inside the chunk of an older scene's state. Users' files hold them: changing one makes the states
/// of those files unreadable.
///
///     kOlderStateChunk           chunks, in any order; ids that are not listed are skipped
///       556  kComponent          chunks, once
///         10   kLabel            type of the component, C string
///         40   kIdentity         its unique name, C string
///       557  kSaveData           its data, any bytes, once
///       558  kNode               chunks, once for each node of the component
///         10   kLabel            the node's name, C string
///         40   kIdentity         the node's handle, 4 bytes, unsigned, little-endian
///       559  kInputProfile       name of its input profile, C string, once
///
/// Where "once" is not kept, the first one counts.
namespace older_state {
inline constexpr USHORT kComponent = 556;
inline constexpr USHORT kSaveData = 557;
inline constexpr USHORT kNode = 558;
inline constexpr USHORT kInputProfile = 559;
inline constexpr USHORT kLabel = 10;
inline constexpr USHORT kIdentity = 40;
}  // namespace older_state

/// Reads the state of an older scene out of the open kOlderStateChunk, which stays open:
///
///     <ZMK_Plugin version="2.5">
///       <type>...</type> <name>...</name>
///       <savedata>Base64 text</savedata>
///       <nodeinfo> <node name="..." platform="adaptor_3dsmax2010"><UID>handle</UID></node>... </nodeinfo>
///       <inputprofile>...</inputprofile>
///     </ZMK_Plugin>
///
/// so that "nodeinfo" can serve as a request for the node lookup. What the chunk lacks, the element lacks
/// too. What cannot be read whole is left out, with a warning in the log; the rest is kept. No size that the
/// chunk states is believed. Linear in the bytes.
util::xml::Element readOlderState(ILoad& load);

}  // namespace qvo::zmx::adaptor::max
