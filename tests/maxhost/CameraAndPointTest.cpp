#include "maxhost/src/objects/PointObject.h"
#include "tests/maxhost/ObjectsFixture.h"
#include "tests/maxhost/ViewRig.h"

namespace maxhost::test {

namespace {

float fieldOfView(GenCamera* camera, TimeValue t) {
    Interval valid = FOREVER;
    return camera->GetFOV(t, valid);
}

}  // namespace

TEST_F(ObjectsTest, CameraLensIsKeyedThroughItsParameters) {
    auto* const camera = create<GenCamera>(CAMERA_CLASS_ID, SIMPLE_CAM_CLASS_ID);
    ASSERT_NE(camera, nullptr);
    nodeOf(camera, "camera");
    EXPECT_EQ(camera->SubAnimName(0), "Parameters");
    EXPECT_EQ(parameter(camera, 0), camera->GetFOVControl());
    EXPECT_FLOAT_EQ(fieldOfView(camera, 0), 3.14159265f / 4);

    setKey(parameter(camera, 0), 0, 0.5f);
    AnimateOn();
    camera->SetFOV(1600, 1.5f);
    AnimateOff();
    EXPECT_EQ(camera->GetFOVControl()->NumKeys(), 2);
    Interval valid = FOREVER;
    EXPECT_FLOAT_EQ(camera->GetFOV(800, valid), 1.0f);
    EXPECT_EQ(valid, Interval(800, 800));
    camera->SetTDist(0, 42);
    EXPECT_EQ(camera->GetTDist(0, valid), 42);
    EXPECT_FALSE(camera->CanConvertToType(triObjectClassID));
}

TEST_F(ObjectsTest, CameraSettingsSurviveUndoCloneAndFile) {
    auto* const camera = create<GenCamera>(CAMERA_CLASS_ID, SIMPLE_CAM_CLASS_ID);
    INode* const node = nodeOf(camera, "camera");
    hold([&] {
        camera->SetFOVType(FOV_D);
        camera->SetOrtho(TRUE);
        camera->SetTDist(0, 9);
    });
    camera->SetFOVType(3);
    EXPECT_EQ(camera->GetFOVType(), FOV_D);
    EXPECT_TRUE(host.undo());
    EXPECT_EQ(camera->GetFOVType(), FOV_W);
    EXPECT_FALSE(camera->IsOrtho());
    EXPECT_TRUE(host.redo());

    auto* const clone = cloneOf<GenCamera>(node);
    EXPECT_EQ(clone->GetFOVType(), FOV_D);
    clone->SetFOVType(FOV_H);
    clone->SetTDist(0, 1);

    expectDamageRefused(chunksOf(*camera), 4,
                        [&] { return create<GenCamera>(CAMERA_CLASS_ID, SIMPLE_CAM_CLASS_ID); });
    reopen();
    auto* const opened = static_cast<GenCamera*>(ip->GetINodeByName("camera")->GetObjectRef());
    EXPECT_EQ(opened->GetFOVType(), FOV_D);
    EXPECT_TRUE(opened->IsOrtho());
    Interval valid = FOREVER;
    EXPECT_EQ(opened->GetTDist(0, valid), 9);
}

TEST_F(ObjectsTest, PointSettingsSurviveUndoCloneAndFile) {
    auto* const point = create<PointObject>(HELPER_CLASS_ID, POINTHELP_CLASS_ID);
    INode* const node = nodeOf(point, "point");
    hold([&] {
        point->show(PointObject::kBox, true);
        point->show(PointObject::kCross, false);
        point->setSize(4);
        point->setSize(-1);
    });
    EXPECT_TRUE(host.undo());
    EXPECT_FALSE(point->isShown(PointObject::kBox));
    EXPECT_TRUE(point->isShown(PointObject::kCross));
    EXPECT_EQ(point->size(), 20);
    EXPECT_TRUE(host.redo());

    cloneOf<PointObject>(node)->setSize(8);

    expectDamageRefused(chunksOf(*point), 4, [] { return new PointObject; });
    reopen();
    auto* const opened = static_cast<PointObject*>(ip->GetINodeByName("point")->GetObjectRef());
    EXPECT_TRUE(opened->isShown(PointObject::kBox));
    EXPECT_FALSE(opened->isShown(PointObject::kCross));
    EXPECT_EQ(opened->size(), 4);
}

TEST_F(ObjectsTest, CameraAndPointShowAsLines) {
    auto* const point = create<PointObject>(HELPER_CLASS_ID, POINTHELP_CLASS_ID);
    INode* const node = nodeOf(point);
    node->SetWireColor(0x00ff0000);
    point->setSize(10);
    const struct {
        PointObject::Switch part;
        const char *left, *right, *corner;
    } rows[] = {
        {PointObject::kCross, "b", "b", "black"},
        {PointObject::kAxisTripod, "black", "b", "black"},
        {PointObject::kBox, "black", "black", "b"},
        {PointObject::kCenterMarker, "black", "black", "black"},
    };
    for (const auto& row : rows) {
        for (const auto& each : rows)
            point->show(each.part, each.part == row.part);
        ViewRig rig(Box3(Point3(-6, -6, -6), Point3(6, 6, 6)));
        point->Display(0, node, &rig.view(), 0);
        EXPECT_EQ(rig.colorAt(Point3(-4, 0, 0)), row.left) << row.part;
        EXPECT_EQ(rig.colorAt(Point3(4, 0, 0)), row.right) << row.part;
        EXPECT_EQ(rig.colorAt(Point3(-5, -5, -5)), row.corner) << row.part;
    }
    auto* const camera = create<GenCamera>(CAMERA_CLASS_ID, SIMPLE_CAM_CLASS_ID);
    INode* const cameraNode = nodeOf(camera);
    cameraNode->SetWireColor(0x0000ff00);
    ViewRig rig(Box3(Point3(-10, 0, -10), Point3(10, 0, 10)));
    camera->Display(0, cameraNode, &rig.view(), 0);
    EXPECT_EQ(rig.colorAt(Point3(0, 0, 0)), "g");
    IPoint2 pixel = rig.pixelOf(Point3(0, 0, 0));
    EXPECT_TRUE(camera->HitTest(0, cameraNode, HITTYPE_POINT, 1, 0, &pixel, &rig.view()));
    Box3 box;
    camera->GetLocalBoundBox(0, cameraNode, &rig.view(), box);
    EXPECT_LT(box.pmin.z, 0);
    EXPECT_EQ(box.pmax.z, 0);
}

}  // namespace maxhost::test
