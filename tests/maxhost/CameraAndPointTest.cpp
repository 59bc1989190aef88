#include "maxhost/src/objects/PointObject.h"
#include "tests/maxhost/ObjectsFixture.h"
#include "tests/maxhost/ViewRig.h"

namespace maxhost::test {

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

TEST_F(ObjectsTest, CameraIsDrawnAndPickedAsLines) {
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
