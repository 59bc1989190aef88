#pragma once

#include <string>
#include <vector>

#include "util/xml/Element.h"

namespace qvo::zmx::adaptor::max {

/// The saved components that the tags of a scene hold, on their way to the core: a flat list in scene order
/// that becomes one tree. What cannot be restored is dropped with a warning that names the node it came from;
/// the rest goes on.
class MasterNodes {
  public:
    /// Takes the "masternode" children of a tag over. `nodeName`: the host node that carries the tag.
    void takeFrom(util::xml::Element& tag, const std::string& nodeName);

    /// Unpacks compressed states, drops duplicates, links components to their parents and hands the tree
    /// over, under a root "ZMK" with one child for each component without a parent. The list is empty
    /// afterwards. Linear in the size of the states.
    util::xml::Element buildTree();

  private:
    struct MasterNode {
        util::xml::Element state;  ///< its "ZMK_Plugin" element
        std::string parent;        ///< name of the parent component, empty at the top level
        int childIndex;
        std::string nodeName;  ///< for the log
    };

    void unpackAll();
    void dropDuplicates();
    util::xml::Element link();

    std::vector<MasterNode> masterNodes_;
};

}  // namespace qvo::zmx::adaptor::max
