#pragma once

#include <memory>
#include <string>
#include <vector>

#include "adaptor/max/services/GatherRecords.h"
#include "util/xml/Element.h"

namespace qvo::zmx::adaptor::max {

class CMAXNode;

/// Finds host nodes by description, for an owner that takes its nodes back. Each "node" child of `request`
/// names an object in its attribute "name" and may give a handle in a "UID" child. Looked for in the running
/// gathering's records, then in the scene's tags, then by handle.
///
/// One entry for each "node" child, in order: a new transient wrapper or null.
std::vector<std::unique_ptr<CMAXNode>> lookUpNodes(const std::string& ownerName,
                                                   const util::xml::Element& request,
                                                   const GatherRecords& records);

}  // namespace qvo::zmx::adaptor::max
