#include "adaptor/max/plugin/SceneState.h"

#include <string>

#include "adaptor/max/Boundary.h"
#include "adaptor/max/ChunkIo.h"
#include "adaptor/max/ClassIds.h"
#include "adaptor/max/plugin/OlderSceneState.h"
#include "adaptor/max/plugin/UtilityManager.h"
#include "util/Log.h"
#include "util/xml/Element.h"
#include "util/xml/Tag.h"

namespace qvo::zmx::adaptor::max {

using util::Log;
using util::xml::Element;

namespace {

constexpr char kRootName[] = "ZMK";

void handOver(UtilityManager& manager, Element& state) {
    if (manager.core) guarded("loadState", [&] { manager.core->loadState(state); });
}

/// The text of the open chunk, copied out of the host's buffer.
IOResult readText(ILoad& load, std::string& text) {
    char* buffer = nullptr;
    const IOResult result = load.ReadCStringChunk(&buffer);
    if (result == IO_OK && buffer) text = buffer;
    return result;
}

IOResult loadStateChunk(UtilityManager& manager, ILoad& load) {
    std::string text;
    const IOResult result = readText(load, text);
    if (result != IO_OK) {
        util::logLine(Log::kError, "Unable to read the state stored in the scene");
        return result;
    }
    Element state;
    const int fault = state.parse(text);
    if (fault != Element::kParsed)
        util::logLine(Log::kWarning, "The state stored in the scene is damaged, parse result ", fault);
    handOver(manager, state);
    return IO_OK;
}

/// Reads the chunk opened last. States of older scenes are collected.
IOResult loadChunk(UtilityManager& manager, ILoad& load, Element& olderStates) {
    switch (load.CurChunkID()) {
        case kStateChunk:
            return loadStateChunk(manager, load);
        case kOlderStateChunk:
            util::logLine(Log::kNotice, "The scene holds state of an older version");
            olderStates.adoptChild(readOlderState(load));
            return IO_OK;
        default:
            return IO_OK;
    }
}

}  // namespace

IOResult saveSceneState(UtilityManager& manager, ISave& save) {
    util::xml::Tag state{std::string()};
    const bool complete = guarded("saveState", false, [&] {
        manager.core->saveState(state);
        return true;
    });
    if (!complete || state.children.empty()) return IO_OK;
    // A tag without a name could not be read back.
    if (state.value.empty()) state.setValue(kRootName);

    const std::string text = state.toString("\n");
    const IOResult result = writeChunk(save, kStateChunk, [&] { return save.WriteCString(text.c_str()); });
    if (result != IO_OK) util::logLine(Log::kError, "Unable to write the state into the scene");
    return result;
}

IOResult loadSceneState(UtilityManager& manager, ILoad& load) {
    util::xml::Tag olderStates(kRootName);
    while (load.OpenChunk() == IO_OK) {
        const IOResult result = loadChunk(manager, load, olderStates);
        if (result != IO_OK) return result;
        load.CloseChunk();
    }
    handOver(manager, olderStates);
    return IO_OK;
}

}  // namespace qvo::zmx::adaptor::max
