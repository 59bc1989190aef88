#include "maxhost/src/objects/BuiltinObjects.h"

#include <iparamb2.h>

#include "maxhost/src/objects/BoxObject.h"
#include "maxhost/src/objects/FreeCamera.h"
#include "maxhost/src/objects/MeshObject.h"
#include "maxhost/src/objects/PointObject.h"
#include "maxhost/src/objects/SphereObject.h"
#include "maxhost/src/objects/SplineShape.h"

namespace maxhost {

namespace {

template <class T>
T* makePlain(bool) {
    return new T;
}

/// A scene file brings the controllers of the objects in it.
template <class T>
T* makeWithControls(bool loading) {
    return new T(!loading);
}

template <class T, T* (*make)(bool loading)>
class ObjectClassDesc : public ClassDesc2 {
  public:
    int IsPublic() override { return 1; }
    /// A reference target, which is what everybody takes it for.
    void* Create(BOOL loading) override { return static_cast<ReferenceTarget*>(make(loading != FALSE)); }
    const TCHAR* ClassName() override { return T::kName; }
    SClass_ID SuperClassID() override { return T::kSuperClass; }
    Class_ID ClassID() override { return Class_ID(T::kClass, 0); }
    const TCHAR* Category() override { return _T("Standard"); }
};

}  // namespace

std::vector<ClassDesc*> builtinObjectClasses() {
    static ObjectClassDesc<BoxObject, makeWithControls<BoxObject>> box;
    static ObjectClassDesc<MeshObject, makePlain<MeshObject>> mesh;
    static ObjectClassDesc<SphereObject, makeWithControls<SphereObject>> sphere;
    static ObjectClassDesc<FreeCamera, makeWithControls<FreeCamera>> camera;
    static ObjectClassDesc<PointObject, makePlain<PointObject>> point;
    static ObjectClassDesc<SplineShape, makePlain<SplineShape>> shape;
    return {&box, &mesh, &sphere, &camera, &point, &shape};
}

}  // namespace maxhost
