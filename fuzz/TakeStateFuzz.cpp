// Properties: any tool tree is a take that the scene can keep, or none. What a take writes comes back as it
// is.

#include <cstddef>
#include <cstdint>
#include <string>

#include "fuzz/Require.h"
#include "samples/mocap_core/options/OptionReader.h"
#include "samples/mocap_core/state/TakeState.h"
#include "util/xml/Tag.h"

using namespace qvo::zmx::mocap;
using qvo::util::xml::Element;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const Element tree(std::string(reinterpret_cast<const char*>(data), size));
    OptionReader::read(tree);
    const auto state = TakeState::readFrom(tree);
    if (!state) return 0;
    require(!state->record.id.empty() && !state->record.joints.empty(), "a take has an id and joints");
    for (const ClipRecord& clip : state->record.clips)
        require(clip.frames > 0 && clip.lastTick >= clip.firstTick && clip.nextTick() >= clip.lastTick,
                "clips are in order");
    qvo::util::xml::Tag masternodes("masternodes");
    state->writeTo(masternodes);
    require(masternodes.children.size() == 1 + state->record.clips.size() + state->record.props.size() +
                                               (state->record.camera.empty() ? 0 : 1),
            "every part is a tool");
    return 0;
}
