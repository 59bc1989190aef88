#include "maxhost/src/objects/MeshObject.h"

#include "maxhost/src/objects/MeshChunks.h"

namespace maxhost {

RefTargetHandle MeshObject::Clone(RemapDir& remap) {
    auto* const clone = new MeshObject;
    clone->mesh = mesh;
    BaseClone(this, clone, remap);
    return clone;
}

IOResult MeshObject::Save(ISave* isave) {
    return saveMesh(*isave, mesh);
}

IOResult MeshObject::Load(ILoad* iload) {
    return loadMesh(*iload, mesh);
}

}  // namespace maxhost

TriObject* CreateNewTriObject() {
    return new maxhost::MeshObject;
}
