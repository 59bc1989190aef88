#include "adaptor/max/plugin/OlderSceneState.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>

#include "adaptor/max/services/MaxAdaptorInterface.h"
#include "util/Base64.h"
#include "util/ByteBuffer.h"
#include "util/Log.h"
#include "util/xml/Tag.h"

namespace qvo::zmx::adaptor::max {

using util::xml::Element;
using util::xml::Tag;

namespace {

void warn(const char* what) {
    util::logLine(util::Log::kWarning, "State of an older scene: ", what);
}

/// Calls `visit(id)` for each chunk inside the open one.
template <class Visit>
void forEachSubChunk(ILoad& load, Visit&& visit) {
    if (load.CurChunkType() != CONTAINER_CHUNK) {
        warn("a chunk holds no chunks");
        return;
    }
    IOResult opened = load.OpenChunk();
    for (; opened == IO_OK; opened = load.OpenChunk()) {
        visit(load.CurChunkID());
        load.CloseChunk();
    }
    if (opened != IO_END) warn("a chunk is cut off");
}

std::optional<std::string> readString(ILoad& load) {
    char* text = nullptr;
    if (load.CurChunkType() != CONTAINER_CHUNK && load.ReadCStringChunk(&text) == IO_OK && text) return text;
    warn("a text cannot be read");
    return std::nullopt;
}

/// The bytes of the open chunk, in pieces, so that memory follows what is there and not what is stated.
std::optional<util::ByteBuffer> readBytes(ILoad& load) {
    constexpr ULONG kPiece = 1 << 16;
    util::ByteBuffer bytes;
    ULONG left = load.CurChunkType() != CONTAINER_CHUNK ? load.CurChunkLength() : 0;
    while (left > 0) {
        const ULONG piece = std::min(left, kPiece);
        bytes.resize(bytes.size() + piece);
        ULONG got = 0;
        if (load.Read(bytes.data() + bytes.size() - piece, piece, &got) != IO_OK || got != piece) {
            warn("data cannot be read");
            return std::nullopt;
        }
        left -= piece;
    }
    return bytes;
}

std::optional<std::string> readHandle(ILoad& load) {
    const std::optional<util::ByteBuffer> bytes = readBytes(load);
    if (!bytes) return std::nullopt;
    if (bytes->size() != 4) {
        warn("a node's handle has the wrong size");
        return std::nullopt;
    }
    std::uint32_t handle = 0;
    for (std::size_t i = 4; i-- > 0;)
        handle = handle << 8 | (*bytes)[i];
    return std::to_string(handle);
}

using Text = std::optional<std::string>;

/// The two things that a component and a node consist of.
struct Labelled {
    Text label;
    Text identity;
};

template <class ReadIdentity>
Labelled readLabelled(ILoad& load, ReadIdentity&& readIdentity) {
    Labelled result;
    forEachSubChunk(load, [&](USHORT id) {
        if (id == older_state::kLabel && !result.label) result.label = readString(load);
        if (id == older_state::kIdentity && !result.identity) result.identity = readIdentity(load);
    });
    return result;
}

/// A node can be looked up by either: its name, through its tag, or its handle.
void addNode(Element& nodes, const Labelled& node) {
    if (!node.label && !node.identity) return;
    Element& element = nodes.addTag("node");
    element.attributes["name"] = node.label.value_or(std::string());
    element.attributes["platform"] = MaxAdaptorInterface::instance().getAdaptorId();
    if (node.identity) element.addTextTag("UID", *node.identity);
}

void addText(Element& parent, const char* name, const Text& text) {
    if (text) parent.addTextTag(name, *text);
}

/// What the chunk held, in whatever order.
struct OlderState {
    Labelled component;
    Text saveData;
    Text inputProfile;
    Element nodes = Tag("nodeinfo");
};

Element elementOf(OlderState&& state) {
    Element element = Tag("ZMK_Plugin");
    element.attributes["version"] = "2.5";
    addText(element, "type", state.component.label);
    addText(element, "name", state.component.identity);
    addText(element, "savedata", state.saveData);
    if (!state.nodes.children.empty()) element.adoptChild(std::move(state.nodes));
    addText(element, "inputprofile", state.inputProfile);
    return element;
}

}  // namespace

Element readOlderState(ILoad& load) {
    OlderState state;
    forEachSubChunk(load, [&](USHORT id) {
        switch (id) {
            case older_state::kComponent:
                if (!state.component.label && !state.component.identity)
                    state.component = readLabelled(load, readString);
                break;
            case older_state::kSaveData:
                if (!state.saveData)
                    if (const auto bytes = readBytes(load)) state.saveData = util::Base64::encode(*bytes);
                break;
            case older_state::kNode:
                addNode(state.nodes, readLabelled(load, readHandle));
                break;
            case older_state::kInputProfile:
                if (!state.inputProfile) state.inputProfile = readString(load);
                break;
            default:
                break;
        }
    });
    return elementOf(std::move(state));
}

}  // namespace qvo::zmx::adaptor::max
