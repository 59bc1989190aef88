// Properties: whatever stands in a node's user properties, the gathering hands the core one tree of
// components and empties the tag that it has read; what it has handed over reads back as it is.

#include <cstddef>
#include <cstdint>
#include <string>

#include "adaptor/max/ClassIds.h"
#include "fuzz/FuzzHost.h"
#include "tests/support/TestCoreObject.h"

using namespace qvo::zmx::adaptor::max;
using qvo::util::xml::Element;

namespace {

/// Every component's state is one, at the top level and below.
void checkTree(const Element& root) {
    require(root.kind == Element::kTag && root.value == "ZMK" && root.attributes.empty(), "the root is ours");
    for (const Element* const child : root.children)
        require(child->kind == Element::kTag && child->value == "ZMK_Plugin", "the root holds components");
}

std::string tagOf(INode& node) {
    TSTR text;
    node.GetUserPropString(TSTR("ZMK_tag"), text);
    return text.data();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzHost fuzzed;
    TestCoreObject core;
    core.onLoad = [](Element& root) { checkTree(root); };
    Interface& host = *GetCOREInterface();
    INode* const node = host.CreateObjectNode(
        static_cast<Object*>(host.CreateInstance(HELPER_CLASS_ID, kHelperClassId)), "node");

    // The first byte chooses: the tag alone, or all user properties, as a user can write them by hand.
    const std::string text(reinterpret_cast<const char*>(data), size);
    const bool wholeBuffer = size > 0 && (data[0] & 1) != 0;
    if (wholeBuffer)
        node->SetUserPropBuffer(TSTR(text.c_str() + 1));
    else if (size > 0)
        node->SetUserPropString(TSTR("ZMK_tag"), TSTR(text.c_str() + 1));

    const std::string before = tagOf(*node);
    MaxAdaptorInterface::instance().gatherNodes();
    require(core.loaded.size() == 1, "the core hears of it once");
    const Element tag(before);
    const bool recorded = !tag.value.empty() || !tag.children.empty() || !tag.attributes.empty();
    require(tagOf(*node) == (recorded ? std::string() : before), "what was read is wiped");
    require(maxhost::win32::Win32Session::messageBoxes().size() == (recorded ? 1u : 0u),
            "who is not taken back is reported");

    MaxAdaptorInterface::instance().gatherNodes();
    require(core.loaded.back() == "<ZMK/>", "nothing comes twice");
    return 0;
}
