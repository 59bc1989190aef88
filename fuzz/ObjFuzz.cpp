// Properties: any bytes are a mesh whose indices are in range, or an error of one line.

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "fuzz/Require.h"
#include "samples/mocap_core/model/ObjReader.h"

using namespace qvo::zmx::mocap;

namespace {

void requireBelow(const std::vector<int>& indices, std::size_t count) {
    for (const int index : indices)
        require(index >= 0 && static_cast<std::size_t>(index) < count, "indices are in range");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    try {
        const qvo::util::CMesh mesh =
            ObjReader::parse({reinterpret_cast<const char*>(data), size}, "fuzz.obj");
        require(!mesh.faces.empty() && mesh.faces.size() % 3 == 0, "faces are triangles");
        requireBelow(mesh.faces, mesh.vertices.size());
        requireBelow(mesh.textureFaces, mesh.textureVertices.size());
        require(mesh.textureVertices.empty() || mesh.textureFaces.size() == mesh.faces.size(),
                "texture faces go with the faces");
    } catch (const FileError& error) {
        require(std::string_view(error.what()).find('\n') == std::string_view::npos, "errors are one line");
    }
    return 0;
}
