#pragma once

#include "mesh.h"
#include "object.h"

/// The object that is nothing but a mesh. Writing into the mesh tells nobody: send REFMSG_CHANGE afterwards.
class CoreExport TriObject : public GeomObject {
  public:
    Mesh mesh;

    Mesh& GetMesh() { return mesh; }
    Class_ID ClassID() override { return Class_ID(TRIOBJ_CLASS_ID, 0); }

  protected:
    TriObject() = default;
    ~TriObject() override = default;
};

/// Empty mesh, referenced by nothing. The caller owns it until it does.
CoreExport TriObject* CreateNewTriObject();

inline const Class_ID triObjectClassID(TRIOBJ_CLASS_ID, 0);
