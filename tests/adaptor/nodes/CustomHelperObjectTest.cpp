#include "adaptor/max/nodes/CustomHelperObject.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <memory>
#include <sstream>

#include "adaptor/max/ClassIds.h"
#include "maxhost/HeadlessHost.h"
#include "tests/support/ChunkBuffer.h"

namespace {

using namespace qvo::zmx::adaptor::max;
using namespace qvo::zmx::test;
using qvo::util::CMesh;

struct Deleter {
    void operator()(CustomHelperObject* object) const { object->DeleteThis(); }
};
using Helper = std::unique_ptr<CustomHelperObject, Deleter>;

Helper makeHelper() {
    return Helper(new CustomHelperObject);
}

Helper makeTetrahedron() {
    CMesh shape;
    shape.vertices = {{0, 0, 0}, {4, 0, 0}, {0, 5, 0}, {0, 0, 0.1}};
    shape.faces = {0, 2, 1, 0, 1, 3, 1, 2, 3, 2, 0, 3};
    Helper helper = makeHelper();
    helper->setShape(shape);
    helper->setColor(0.25f, 0.5f, 1.0f);
    helper->setBackfaceCulling(true);
    helper->setPivotAxes(true);
    return helper;
}

/// Everything that a scene file keeps, in one line.
std::string described(const CustomHelperObject& helper) {
    std::ostringstream text;
    for (const auto& vertex : helper.shape().vertices)
        text << vertex.x << ',' << vertex.y << ',' << vertex.z << ' ';
    for (const int index : helper.shape().faces)
        text << index << ' ';
    for (const float part : helper.color())
        text << part << ' ';
    text << helper.wireframe() << helper.backfaceCulling() << helper.markerWhenEmpty() << helper.pivotAxes();
    return text.str();
}

ChunkList saved(CustomHelperObject& helper) {
    ChunkSaver saver;
    EXPECT_EQ(helper.Save(&saver), IO_OK);
    EXPECT_TRUE(saver.balanced());
    return saver.chunks;
}

Helper loaded(const ChunkList& chunks) {
    Helper helper = makeHelper();
    ChunkLoader loader(chunks);
    EXPECT_EQ(helper->Load(&loader), IO_OK);
    EXPECT_TRUE(loader.finished());
    return helper;
}

std::string bytesOf(const void* start, std::size_t size) {
    return std::string(static_cast<const char*>(start), size);
}

TEST(CustomHelperObject, StoresItsBytesAsUsersFilesHoldThem) {
    const Helper helper = makeTetrahedron();
    const ChunkList chunks = saved(*helper);
    ASSERT_EQ(chunks.size(), 3u);

    const std::uint32_t count = 4;
    const double lastVertex[] = {0, 0, 0.1};
    const std::int32_t lastFace[] = {2, 0, 3};
    const float color[] = {0.25f, 0.5f, 1.0f};
    const std::string look = bytesOf(color, sizeof color) + std::string("\0\1\0\1", 4);
    EXPECT_EQ(chunks[0].id, 1);
    EXPECT_EQ(chunks[0].bytes.substr(0, 4), bytesOf(&count, 4));
    EXPECT_EQ(chunks[0].bytes.substr(4 + 3 * 24), bytesOf(lastVertex, 24));
    EXPECT_EQ(chunks[1].id, 2);
    EXPECT_EQ(chunks[1].bytes.substr(0, 4), bytesOf(&count, 4));
    EXPECT_EQ(chunks[1].bytes.substr(4 + 3 * 12), bytesOf(lastFace, 12));
    EXPECT_EQ(chunks[2].id, 3);
    EXPECT_EQ(chunks[2].bytes, look);
    EXPECT_EQ(described(*loaded(chunks)), described(*helper));
}

TEST(CustomHelperObject, EmptyShapeSavesAsTwoCountsOfZero) {
    const Helper helper = makeHelper();
    const ChunkList chunks = saved(*helper);
    ASSERT_EQ(chunks.size(), 3u);
    EXPECT_EQ(chunks[0].bytes, std::string(4, '\0'));
    EXPECT_EQ(chunks[1].bytes, std::string(4, '\0'));
    EXPECT_EQ(described(*loaded(chunks)), described(*helper));
}

TEST(CustomHelperObject, DamagedChunksLoadAsFarAsTheyGo) {
    const ChunkList whole = saved(*makeTetrahedron());
    for (std::size_t chunk = 0; chunk < whole.size(); ++chunk) {
        for (std::size_t length = 0; length < whole[chunk].bytes.size(); ++length) {
            ChunkList cut = whole;
            cut[chunk].bytes.resize(length);
            const Helper helper = loaded(cut);
            const std::size_t vertices = chunk == 0 ? (length < 4 ? 0 : (length - 4) / 24) : 4;
            const std::size_t faces = chunk == 1 ? (length < 4 ? 0 : (length - 4) / 12) : 4;
            EXPECT_EQ(helper->shape().vertices.size(), vertices) << chunk << ' ' << length;
            EXPECT_EQ(helper->shape().faces.size(), faces * 3) << chunk << ' ' << length;
            EXPECT_EQ(helper->color()[2], 1.0f);
            EXPECT_EQ(helper->pivotAxes(), chunk != 2) << length;
        }
    }
    ChunkList overstated = whole;
    overstated[0].bytes.replace(0, 4, "\xff\xff\xff\xff");
    overstated[1].bytes.replace(0, 4, "\xff\xff\xff\x7f");
    overstated.push_back({77, "unknown"});
    EXPECT_EQ(described(*loaded(overstated)), described(*loaded(whole)));

    const Helper untouched = makeHelper();
    ChunkLoader broken(whole);
    broken.OpenChunk();  // no further chunk can be opened before this one is closed
    EXPECT_EQ(untouched->Load(&broken), IO_ERROR);
    EXPECT_EQ(described(*untouched), described(*makeHelper()));

    ChunkList blind = whole;
    const float notANumber = std::numeric_limits<float>::quiet_NaN();
    blind[2].bytes.replace(4, 4, bytesOf(&notANumber, 4));
    EXPECT_EQ(loaded(blind)->color(), makeHelper()->color());
}

TEST(CustomHelperObject, FullDiskIsReported) {
    const Helper helper = makeTetrahedron();
    for (int writes = 0; writes < 6; ++writes) {
        ChunkSaver saver;
        saver.failAfter = writes;
        EXPECT_EQ(helper->Save(&saver), IO_ERROR) << writes;
        EXPECT_TRUE(saver.balanced());
    }
}

TEST(CustomHelperObject, CloneIsEqualAndIndependent) {
    const Helper helper = makeTetrahedron();
    DefaultRemapDir remap;
    const Helper copy(static_cast<CustomHelperObject*>(helper->Clone(remap)));
    const std::string before = described(*helper);
    EXPECT_EQ(described(*copy), before);
    copy->setShape({});
    copy->setWireframe(true);
    EXPECT_EQ(described(*helper), before);
    EXPECT_EQ(copy->ClassID(), kHelperClassId);
}

TEST(CustomHelperObject, BoxFollowsTheShape) {
    const Helper helper = makeTetrahedron();
    Box3 box;
    helper->GetLocalBoundBox(0, nullptr, nullptr, box);
    EXPECT_EQ(box.Min(), Point3(0.0f, 0.0f, 0.0f));
    EXPECT_EQ(box.Max(), Point3(4.0f, 5.0f, 0.1f));

    CMesh broken;  // indices without vertices, and some out of range
    broken.faces = {0, 1, 2};
    helper->setShape(broken);
    helper->GetLocalBoundBox(0, nullptr, nullptr, box);
    EXPECT_TRUE(box.IsEmpty());
    broken.vertices = {{1, 2, 3}};
    broken.faces = {0, -1, 7, 0, 0, 0, 5};
    helper->setShape(broken);
    helper->GetLocalBoundBox(0, nullptr, nullptr, box);
    EXPECT_EQ(box.Max(), Point3(1.0f, 2.0f, 3.0f));
}

/// A drawing surface that notes the limits under which something is drawn, and where; everything counts as
/// hit.
class NotingWindow : public GraphicsWindow {
  public:
    void setTransform(const Matrix3& m) override { place = m.GetTrans(); }
    DWORD getRndLimits() const override { return limits; }
    void setRndLimits(DWORD wanted) override { limits = wanted; }
    DWORD getRndMode() const override { return limits; }
    void setColor(int /*which*/, float r, float g, float b) override { color = Point3(r, g, b); }
    void setMaterial(const Material& /*m*/, int /*index*/) override {}
    void setHitRegion(HitRegion* region) override { epsilon = region->epsilon; }
    void clearHitCode() override { drawnWith = 0; }
    BOOL checkHitCode() override { return drawnWith != 0; }
    void polyline(int /*ct*/, Point3* /*pts*/, Point3* /*rgb*/, int /*closed*/, int* /*es*/) override {
        ++lines;
    }
    void triangle(Point3* /*pts*/, Point3* /*rgb*/) override { drawnWith = limits; }
    void triangleW(Point3* /*pts*/, int* /*es*/) override { drawnWith = limits; }
    void text(Point3* /*at*/, const TCHAR* /*s*/) override {}

    DWORD limits = GW_ILLUM | GW_SPECULAR | GW_TEXTURE;
    DWORD drawnWith = 0;
    int lines = 0;
    int epsilon = 0;
    Point3 place, color;
};

class NotingView : public ViewExp {
  public:
    GraphicsWindow* getGW() override { return &window; }
    BOOL IsPerspView() override { return TRUE; }
    void GetAffineTM(Matrix3& tm) override { tm = Matrix3(1); }
    float NonScalingObjectSize() override { return 1.0f; }

    NotingWindow window;
};

class CustomHelperDisplay : public ::testing::Test {
  protected:
    CustomHelperDisplay() {
        Matrix3 placed = TransMatrix(Point3(10.0f, 20.0f, 30.0f));
        node->SetNodeTM(0, placed);
    }

    /// The limits under which the shape is drawn; the view's own are put back.
    DWORD drawnWith() {
        view.window.drawnWith = 0;
        view.window.lines = 0;
        EXPECT_EQ(helper->Display(0, node, &view, 0), 1);
        EXPECT_EQ(view.window.limits, DWORD{GW_ILLUM | GW_SPECULAR | GW_TEXTURE});
        return view.window.drawnWith;
    }

    maxhost::HeadlessHost host;
    CustomHelperObject* helper = makeTetrahedron().release();  // the node's
    INode* node = GetCOREInterface()->CreateObjectNode(helper);
    NotingView view;
};

TEST_F(CustomHelperDisplay, SwitchesRestrictHowItIsDrawn) {
    const struct {
        bool wireframe, culling;
        DWORD limits;
    } cases[] = {
        {false, false, GW_ILLUM | GW_SPECULAR | GW_TEXTURE | GW_Z_BUFFER},
        {false, true, GW_ILLUM | GW_SPECULAR | GW_TEXTURE | GW_Z_BUFFER | GW_BACKCULL},
        {true, false, GW_TEXTURE | GW_Z_BUFFER | GW_WIREFRAME | GW_FLAT},
        {true, true, GW_TEXTURE | GW_Z_BUFFER | GW_WIREFRAME | GW_FLAT | GW_BACKCULL},
    };
    for (const auto& each : cases) {
        helper->setWireframe(each.wireframe);
        helper->setBackfaceCulling(each.culling);
        EXPECT_EQ(drawnWith(), each.limits) << each.wireframe << each.culling;
    }
    EXPECT_EQ(view.window.color, Point3(0.25f, 0.5f, 1.0f));
    EXPECT_EQ(view.window.place, Point3(10.0f, 20.0f, 30.0f));
    EXPECT_EQ(view.window.lines, 3) << "the pivot's axes";

    helper->setPivotAxes(false);
    helper->setMarkerWhenEmpty(true);
    drawnWith();
    EXPECT_EQ(view.window.lines, 0);
    helper->setShape({});
    EXPECT_EQ(drawnWith(), DWORD{0});
    EXPECT_EQ(view.window.lines, 3) << "the marker";
}

TEST_F(CustomHelperDisplay, IsPickedAndMeasuredWhereItsNodeIs) {
    IPoint2 cursor(3, 4);
    EXPECT_NE(helper->HitTest(0, node, HITTYPE_POINT, 0, 0, &cursor, &view), 0);
    EXPECT_EQ(view.window.epsilon, 4);
    EXPECT_EQ(view.window.place, Point3(10.0f, 20.0f, 30.0f));
    EXPECT_EQ(view.window.limits, DWORD{GW_ILLUM | GW_SPECULAR | GW_TEXTURE});

    Box3 box;
    helper->GetWorldBoundBox(0, node, &view, box);
    EXPECT_EQ(box.Min(), Point3(10.0f, 20.0f, 30.0f));
    EXPECT_EQ(box.Max(), Point3(14.0f, 25.0f, 30.1f));
    helper->setShape({});
    EXPECT_EQ(helper->HitTest(0, node, HITTYPE_POINT, 0, 0, &cursor, &view), 0);
}

}  // namespace
