// Properties: whatever bytes a helper object is given to load, it holds no more than the bytes can, what it
// saves it loads again byte for byte, and it can be measured and drawn.

#include <cstddef>
#include <cstdint>
#include <vector>

#include "adaptor/max/ClassIds.h"
#include "adaptor/max/nodes/CustomHelperObject.h"
#include "fuzz/FuzzHost.h"
#include "maxhost/Viewport.h"
#include "maxhost/src/files/ChunkReader.h"
#include "maxhost/src/files/ChunkWriter.h"

using namespace qvo::zmx::adaptor::max;

namespace {

maxhost::Bytes saved(CustomHelperObject& helper) {
    maxhost::ChunkWriter out;
    require(helper.Save(&out) == IO_OK && !out.failed() && out.depth() == 0, "everything can be saved");
    return out.take();
}

CustomHelperObject& makeHelper() {
    return *static_cast<CustomHelperObject*>(
        static_cast<Object*>(GetCOREInterface()->CreateInstance(HELPER_CLASS_ID, kHelperClassId)));
}

/// Draws all helpers, each under a node, which is the scene's to delete.
void draw(const std::vector<CustomHelperObject*>& helpers) {
    Interface& host = *GetCOREInterface();
    for (CustomHelperObject* const helper : helpers) {
        INode* const node = host.CreateObjectNode(helper);
        Box3 box;
        helper->GetWorldBoundBox(0, node, nullptr, box);
    }
    maxhost::ContactSheet sheet;
    sheet.cellWidth = 24;
    sheet.cellHeight = 18;
    maxhost::renderContactSheet(host, {0}, sheet);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzHost fuzzed;
    CustomHelperObject& helper = makeHelper();
    maxhost::ChunkReader in({data, size}, nullptr);
    helper.Load(&in);
    const auto& shape = helper.shape();
    require(shape.vertices.size() * sizeof(shape.vertices[0]) <= size, "no vertex comes from nowhere");
    require(shape.faces.size() * sizeof(shape.faces[0]) <= size, "no triangle comes from nowhere");
    require(shape.faces.size() % 3 == 0, "triangles are whole");

    const maxhost::Bytes first = saved(helper);
    CustomHelperObject& copy = makeHelper();
    maxhost::ChunkReader again({first.data(), first.size()}, nullptr);
    require(copy.Load(&again) == IO_OK, "what was saved is whole");
    require(saved(copy) == first, "what is saved is loaded");
    draw({&helper, &copy});
    return 0;
}
