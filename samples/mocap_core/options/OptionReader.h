#pragma once

#include <memory>

#include "samples/mocap_core/options/GroupOption.h"
#include "util/xml/Element.h"

namespace qvo::zmx::mocap {

/// Builds option elements from a plug-in's description of its options:
///
///     <group name="label">
///         <body>
///             <list> <body>
///                 <check id="1030" name="label" value="false" tooltip="text"> ... </check>
///                 <button id="1028" name="label"/>
///             </body> </list>
///         </body>
///     </group>
///
/// A group's body may also hold checks and buttons, a list's body further lists. Elements of other names say
/// how the group is laid out on a panel, and are skipped.
class OptionReader {
  public:
    /// Deeper lists are left out: the elements are searched and destroyed recursively.
    static constexpr int kMaxDepth = 8;

    /// Null when `root` is no group. A check or button without a usable id is left out and named in the log.
    static std::unique_ptr<GroupOption> read(const util::xml::Element& root);
};

}  // namespace qvo::zmx::mocap
