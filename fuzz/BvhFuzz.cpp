// Properties: any bytes are a clip that keeps its promises and evaluates, or an error of one line.

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "fuzz/Require.h"
#include "samples/mocap_core/bvh/BvhReader.h"
#include "samples/mocap_core/bvh/Skeleton.h"

using namespace qvo::zmx::mocap;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    try {
        const Clip clip = BvhReader::parse({reinterpret_cast<const char*>(data), size}, "fuzz.bvh");
        require(!clip.joints.empty() && clip.frameCount() > 0 && clip.frameTime > 0.0, "nothing is missing");
        require(clip.values.size() == clip.frameCount() * clip.channelCount, "every frame is whole");
        std::vector<qvo::zmx::Matrix4> world;
        Skeleton(clip, 0.01).evaluate(0, world);
    } catch (const FileError& error) {
        require(std::string_view(error.what()).find('\n') == std::string_view::npos, "errors are one line");
    }
    return 0;
}
