// Properties: any bytes are a scene, or are refused with a message and leave nothing behind; a scene that was
// read can be written, read and written again to the same bytes; the plug-in's utility reads whatever stands
// in its part of the file, a core attached.

#include <cstddef>
#include <cstdint>
#include <stdexcept>

#include "adaptor/max/ClassIds.h"
#include "fuzz/FuzzHost.h"
#include "maxhost/src/files/ChunkReader.h"
#include "maxhost/src/files/SceneReader.h"
#include "maxhost/src/files/SceneWriter.h"
#include "maxhost/src/host/Host.h"
#include "tests/support/TestCoreObject.h"

using namespace qvo::zmx::adaptor::max;
using maxhost::SceneDocument;
using maxhost::SceneReader;

namespace {

SceneDocument read(maxhost::ByteSpan bytes, SceneReader::Checksums checksums) {
    return SceneReader::read(bytes, maxhost::Host::instance().classes(), checksums);
}

maxhost::Bytes write(const SceneDocument& document) {
    return maxhost::SceneWriter::write(*document.scene, document.settings, document.utilities);
}

/// The plug-in's part of the file, and the core that gets its state.
void loadUtility(const SceneDocument& document) {
    TestCoreObject core;
    for (const maxhost::UtilityPart& part : document.utilities) {
        core.loaded.clear();
        maxhost::ChunkReader in({part.chunks.data(), part.chunks.size()}, nullptr);
        require(UtilityManager::instance().Load(&in) == IO_OK, "damage is no failure");
        require(!core.loaded.empty() && core.loaded.back().rfind("<ZMK", 0) == 0, "the root comes last");
    }
    MaxAdaptorInterface::instance().gatherNodes();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzHost fuzzed;
    try {
        SceneDocument document = read({data, size}, SceneReader::Checksums::ignored);
        const maxhost::Bytes first = write(document);
        const SceneDocument again = read({first.data(), first.size()}, SceneReader::Checksums::verified);
        require(write(again) == first, "what is written is read");

        maxhost::Host::instance().replaceScene(std::move(document.scene));
        loadUtility(again);
        for (INode* node : {GetCOREInterface()->GetRootNode()})
            for (int i = 0; i < node->NumberOfChildren(); ++i)
                node->GetChildNode(i)->GetNodeTM(160);
    } catch (const std::runtime_error& refusal) {
        require(*refusal.what() != '\0', "a refusal says why");
    }
    return 0;
}
