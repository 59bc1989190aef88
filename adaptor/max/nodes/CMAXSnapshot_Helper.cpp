#include "adaptor/max/nodes/CMAXSnapshot_Helper.h"

#include <cmath>
#include <cstdint>

#include "adaptor/max/Boundary.h"
#include "adaptor/max/ClassIds.h"
#include "adaptor/max/nodes/ConvertedObjects.h"
#include "adaptor/max/nodes/CustomHelperObject.h"
#include "adaptor/max/nodes/MeshTransfer.h"
#include "util/Log.h"

namespace qvo::zmx::adaptor::max {
namespace {

constexpr double kInt64Limit = 9223372036854775808.0;

DWORD packedComponent(float component) {
    const double scaled = std::trunc(component * 255.0);
    if (!(std::fabs(scaled) < kInt64Limit)) return 0;
    return static_cast<DWORD>(static_cast<std::int64_t>(scaled) & 0xFF);
}

/// `object` if it is a triangle object itself, whatever its class; null when it only converts to one, since
/// nobody would see a shape written into the copy.
TriObject* asTriangles(Object& object) {
    const Class_ID triangles(TRIOBJ_CLASS_ID, 0);
    if (!object.CanConvertToType(triangles)) return nullptr;
    Object* const converted = object.ConvertToType(GetCOREInterface()->GetTime(), triangles);
    if (converted == &object) return static_cast<TriObject*>(converted);
    ConvertedObjects::destroy(static_cast<TriObject*>(converted));
    return nullptr;
}

}  // namespace

DWORD packedColor(float red, float green, float blue) {
    return packedComponent(red) | packedComponent(green) << 8 | packedComponent(blue) << 16;
}

CustomHelperObject* CMAXNode::CMAXSnapshot_Helper::customHelper() const {
    Object* const present = usableObject();
    return present && present->SuperClassID() == HELPER_CLASS_ID && present->ClassID() == kHelperClassId
               ? static_cast<CustomHelperObject*>(present)
               : nullptr;
}

void CMAXNode::CMAXSnapshot_Helper::setMesh(const util::CMesh& mesh) {
    guarded("setMesh", [&] {
        Object* const present = usableObject();
        if (!present || present->SuperClassID() == CAMERA_CLASS_ID) return;
        if (CustomHelperObject* const helper = customHelper()) {
            helper->setShape(mesh);
        } else if (TriObject* const triangles = asTriangles(*present)) {
            writeHostMesh(mesh, triangles->GetMesh());
            notifyMeshChanged(*triangles, triangles->GetMesh());
        } else {
            util::logLine(util::Log::kWarning, "Node ", node.get()->GetName(), " cannot show a shape");
        }
    });
}

void CMAXNode::CMAXSnapshot_Helper::setColor(float red, float green, float blue) {
    guarded("setColor", [&] {
        if (CustomHelperObject* const helper = customHelper()) helper->setColor(red, green, blue);
        if (INode* const present = node.get()) present->SetWireColor(packedColor(red, green, blue));
    });
}

void CMAXNode::CMAXSnapshot_Helper::setWireframe(bool on) {
    guarded("setWireframe", [&] {
        if (CustomHelperObject* const helper = customHelper()) helper->setWireframe(on);
    });
}

void CMAXNode::CMAXSnapshot_Helper::setBackfaceCulling(bool on) {
    guarded("setBackfaceCulling", [&] {
        if (CustomHelperObject* const helper = customHelper()) helper->setBackfaceCulling(on);
    });
}

}  // namespace qvo::zmx::adaptor::max
