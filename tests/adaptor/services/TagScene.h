#pragma once

#include <string>

#include "adaptor/max/ClassIds.h"
#include "tests/support/AdaptorFixture.h"
#include "tests/support/MessageBoxes.h"
#include "tests/support/TestCoreObject.h"

namespace qvo::zmx::adaptor::max {

/// A tag for a node `objectName` of `ownerName`; `masternodes` is what the element of that name holds.
inline std::string tagText(const std::string& ownerName, const std::string& objectName,
                           const std::string& masternodes = std::string()) {
    return "<ZMK_tag><name>" + ownerName + "</name><objectname>" + objectName + "</objectname>" +
           (masternodes.empty() ? "" : "<masternodes>" + masternodes + "</masternodes>") + "</ZMK_tag>";
}

/// A scene of tagged nodes that the adaptor does not know yet, and a core.
class TagScene : public AdaptorFixture {
  protected:
    ~TagScene() override { EXPECT_EQ(boxes.take(), std::vector<std::string>()); }

    /// A node at the top level, or below `parent`.
    static INode& addNode(const std::string& name, const std::string& tag, INode* parent = nullptr) {
        auto* const object = static_cast<Object*>(ip().CreateInstance(HELPER_CLASS_ID, kHelperClassId));
        INode* const node = ip().CreateObjectNode(object, name.c_str());
        if (parent) parent->AttachChild(node);
        if (!tag.empty()) node->SetUserPropString(TSTR("ZMK_tag"), TSTR(tag.c_str()));
        return *node;
    }

    static std::string tagOf(INode& node) {
        TSTR text;
        node.GetUserPropString(TSTR("ZMK_tag"), text);
        return text.data();
    }

    static bool logged(const std::string& text) { return log().find(text) != std::string::npos; }

    /// The views that a lookup hands out, null for what was not found; the test releases them.
    static std::vector<core::CoreNode*> lookUp(const std::string& ownerName, const std::string& request) {
        std::vector<core::CoreNode*> found;
        util::ReturnInto<std::vector<core::CoreNode*>> sink(found);
        adaptor().lookupNode(ownerName, util::xml::Element("<request>" + request + "</request>"), sink);
        return found;
    }

    /// Takes the node of that tag back for `owner`, as a core does while it loads.
    void claim(const std::string& ownerName, const std::string& objectName) {
        core::CoreNode* const view = lookUp(ownerName, "<node name=\"" + objectName + "\"/>").front();
        ASSERT_NE(view, nullptr) << objectName;
        EXPECT_NE(view->claim(&owner, objectName), nullptr);
        view->destroy();
    }

    test::MessageBoxes boxes;
    TestCoreObject core;
};

}  // namespace qvo::zmx::adaptor::max
