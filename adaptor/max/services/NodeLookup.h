#pragma once

#include <string>
#include <vector>

#include "adaptor/max/services/GatherRecords.h"
#include "core/CoreNode.h"
#include "util/xml/Element.h"

namespace qvo::zmx::adaptor::max {

/// Finds host nodes by description, for an owner that takes its nodes back. Each "node" child of `request`
/// names an object in its attribute "name" and may give a handle in a "UID" child. Looked for in the running
/// gathering's records, then in the scene's tags, then by handle.
///
/// One entry for each "node" child, in order: a new transient wrapper, which is the caller's, or null.
std::vector<core::CoreNode*> lookUpNodes(const std::string& ownerName, const util::xml::Element& request,
                                         const GatherRecords& records);

}  // namespace qvo::zmx::adaptor::max
