#pragma once

#include <array>
#include <cstddef>

#include "adaptor/max/Host.h"
#include "util/CMesh.h"

namespace qvo::zmx::adaptor::max {

/// The product's helper object: shows a triangle shape in the viewports in a colour of its own and does not
/// render. Shapes are object-local, in the host's axes and system units.
///
/// Scene files hold three chunks: 1 the vertex count and the vertices (three doubles each), 2 the triangle
/// count and the triangles (three 32-bit indices each), 3 the colour (three floats) and one byte for each
/// switch. An empty shape is two counts of zero. Counts that exceed what a chunk holds are cut, what is
/// missing keeps its default.
class CustomHelperObject : public HelperObject {
  public:
    CustomHelperObject() = default;

    const util::CMesh& shape() const { return shape_; }

    /// Keeps a copy of `shape` and has the views follow. Indices are taken as they are; a triangle that names
    /// a vertex which is not there is drawn as (0, 0, 0).
    void setShape(const util::CMesh& shape);

    /// Red, green and blue, 0 to 1.
    const std::array<float, 3>& color() const { return color_; }
    void setColor(float red, float green, float blue);

    /// Drawn as unlit flat wireframe.
    bool wireframe() const { return flags_[kWireframe]; }
    void setWireframe(bool on) { setFlag(kWireframe, on); }

    /// Faces whose back points to the viewer are not drawn.
    bool backfaceCulling() const { return flags_[kBackfaceCulling]; }
    void setBackfaceCulling(bool on) { setFlag(kBackfaceCulling, on); }

    /// A small cross is drawn while there is no shape.
    bool markerWhenEmpty() const { return flags_[kMarkerWhenEmpty]; }
    void setMarkerWhenEmpty(bool on) { setFlag(kMarkerWhenEmpty, on); }

    /// The axes of the pivot are drawn.
    bool pivotAxes() const { return flags_[kPivotAxes]; }
    void setPivotAxes(bool on) { setFlag(kPivotAxes, on); }

    // Animatable
    void DeleteThis() override { delete this; }
    void GetClassName(TSTR& name) override;
    Class_ID ClassID() override;
    void BeginEditParams(IObjParam* /*ip*/, ULONG /*flags*/, Animatable* /*prev*/ = nullptr) override {}
    void EndEditParams(IObjParam* /*ip*/, ULONG /*flags*/, Animatable* /*next*/ = nullptr) override {}

    // ReferenceMaker, ReferenceTarget
    RefResult NotifyRefChanged(Interval changeInt, RefTargetHandle target, PartID& part,
                               RefMessage message) override;
    RefTargetHandle Clone(RemapDir& remap) override;
    IOResult Save(ISave* isave) override;
    IOResult Load(ILoad* iload) override;

    // BaseObject
    int HitTest(TimeValue t, INode* inode, int type, int crossing, int flags, IPoint2* p,
                ViewExp* vpt) override;
    int Display(TimeValue t, INode* inode, ViewExp* vpt, int flags) override;
    void GetLocalBoundBox(TimeValue t, INode* inode, ViewExp* vpt, Box3& box) override;
    void GetWorldBoundBox(TimeValue t, INode* inode, ViewExp* vpt, Box3& box) override;
    CreateMouseCallBack* GetCreateMouseCallBack() override { return nullptr; }
    TCHAR* GetObjectName() override;

    // Object
    ObjectState Eval(TimeValue t) override;
    void InitNodeName(TSTR& name) override;

  protected:
    ~CustomHelperObject() override = default;  // through DeleteThis

  private:
    /// The switches in the order in which scene files hold them.
    enum Flag : std::size_t { kWireframe, kBackfaceCulling, kMarkerWhenEmpty, kPivotAxes, kFlagCount };

    void setFlag(Flag flag, bool on);

    /// Makes the display mesh from the shape, each time anew.
    void rebuildDisplayMesh();
    void fillDisplayFaces();
    DWORD renderLimits(DWORD viewLimits) const;
    void drawShape(GraphicsWindow& window);
    void drawLines(GraphicsWindow& window);
    float pivotReach();

    IOResult loadChunk(ILoad& load);
    IOResult loadVertices(ILoad& load);
    IOResult loadFaces(ILoad& load);
    IOResult loadLook(ILoad& load);

    util::CMesh shape_;
    Mesh displayMesh_;
    std::array<float, 3> color_{1.0f, 1.0f, 1.0f};
    std::array<bool, kFlagCount> flags_{};
};

}  // namespace qvo::zmx::adaptor::max
