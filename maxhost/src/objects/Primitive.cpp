#include "maxhost/src/objects/Primitive.h"

#include <triobj.h>

#include <cmath>

namespace maxhost {

RefTargetHandle Primitive::Clone(RemapDir& remap) {
    Primitive* const clone = makeBare();
    clone->parameters().cloneControls(parameters(), remap);
    BaseClone(this, clone, remap);
    return clone;
}

int Primitive::CanConvertToType(Class_ID type) {
    return type == ClassID() || type == triObjectClassID ? 1 : 0;
}

Object* Primitive::ConvertToType(TimeValue t, Class_ID type) {
    if (type == ClassID()) return this;
    if (type != triObjectClassID) return nullptr;
    TriObject* const converted = CreateNewTriObject();
    buildMesh(t, converted->mesh);
    return converted;
}

Mesh& Primitive::figureAt(TimeValue t, ViewExp*) {
    buildMesh(t, shown_);
    return shown_;
}

float Primitive::sizeAt(int i, TimeValue t) {
    Interval valid = FOREVER;
    return std::fabs(parameters().value(i, t, valid));
}

}  // namespace maxhost
