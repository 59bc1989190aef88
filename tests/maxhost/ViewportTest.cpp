#include "maxhost/Viewport.h"

#include <gtest/gtest.h>
#include <max.h>

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "maxhost/HeadlessHost.h"
#include "maxhost/src/viewport/Camera.h"

namespace {

using maxhost::Camera;

TEST(Camera, FramesAllPointsAsCloselyAsTheMarginAllows) {
    const struct {
        const char* name;
        std::vector<Point3> points;
        bool touchesMargin;
    } rows[] = {
        {"box", {{-10, -4, 0}, {10, 4, 0}, {-10, 4, 18}, {10, -4, 18}}, true},
        {"wide", {{-500, 0, 0}, {500, 0, 3}}, true},
        {"far from the origin", {{1e5, 1e5, 2e5}, {1.0001e5, 1e5, 2.001e5}}, true},
        {"one place", {{3, 4, 5}, {3, 4, 5}}, false},
    };
    constexpr double kMargin = 0.1;
    constexpr int kWidth = 400, kHeight = 300;
    for (const auto& row : rows) {
        Camera camera(Camera::Direction(), kWidth, kHeight);
        camera.frame(row.points, kMargin, 2);
        double room = 1;  // least distance to the rim, as a part of the width or height
        for (const Point3& point : row.points) {
            const maxhost::ViewPoint view = camera.toView(point);
            ASSERT_GE(view.distance, 1.99) << row.name;
            const maxhost::ScreenPoint p = camera.toScreen(view);
            room = std::min({room, p.x / kWidth, 1 - p.x / kWidth, p.y / kHeight, 1 - p.y / kHeight});
        }
        EXPECT_GE(room, kMargin - 1e-3) << row.name;
        EXPECT_EQ(row.touchesMargin, room < kMargin + 1e-3) << row.name;
    }
}

/// A place without anything to show.
class Marker : public HelperObject {
  public:
    void DeleteThis() override { delete this; }
    Class_ID ClassID() override { return Class_ID(0x1234, 0x5678); }
    RefResult NotifyRefChanged(Interval, RefTargetHandle, PartID&, RefMessage) override {
        return REF_SUCCEED;
    }
    CreateMouseCallBack* GetCreateMouseCallBack() override { return nullptr; }
    ObjectState Eval(TimeValue) override { return ObjectState(this); }
};

class ContactSheetTest : public ::testing::Test {
  protected:
    /// A marker whose X moves from 0 to 100 between ticks 0 and 1600.
    void SetUp() override {
        INode* node = host_.interface().CreateObjectNode(new Marker);  // the node takes it over
        node->SetWireColor(0x0000ff);
        AnimateOn();
        for (const int t : {0, 1600}) {
            Matrix3 place = TransMatrix(Point3(t / 16.0f, 0.0f, 10.0f));
            node->SetNodeTM(t, place);
        }
        AnimateOff();
    }

    /// X of the middle of the red pixels in one cell; -1 without any.
    static double redColumn(const maxhost::Picture& picture, int left, int right) {
        double sum = 0, count = 0;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = left; x < right; ++x) {
                const std::uint8_t* p = picture.pixel(x, y);
                if (p[0] < 2 * p[1] + 40 || p[0] < 2 * p[2] + 40) continue;
                sum += x - left;
                ++count;
            }
        }
        return count == 0 ? -1 : sum / count;
    }

    maxhost::HeadlessHost host_;
};

TEST_F(ContactSheetTest, ShowsMovementFromOnePlace) {
    maxhost::ContactSheet sheet;
    sheet.cellWidth = 200;
    sheet.cellHeight = 150;
    const maxhost::Picture picture = maxhost::renderContactSheet(host_.interface(), {0, 800, 1600}, sheet);
    ASSERT_EQ(picture.height(), 150);
    const int step = (picture.width() - 200) / 2;
    const double first = redColumn(picture, 0, 200), second = redColumn(picture, step, step + 200),
                 third = redColumn(picture, 2 * step, 2 * step + 200);
    EXPECT_GT(first, 0);
    EXPECT_GT(second, first + 20);
    EXPECT_GT(third, second + 20);
    EXPECT_EQ(host_.interface().GetTime(), 0);
}

TEST_F(ContactSheetTest, EmptySceneAndNoMomentsStillGiveAPicture) {
    host_.reset();
    maxhost::ContactSheet sheet;
    EXPECT_EQ(maxhost::renderContactSheet(host_.interface(), {0}, sheet).width(), sheet.cellWidth);
    sheet.title = "nothing";
    EXPECT_GT(maxhost::renderContactSheet(host_.interface(), {}, sheet).height(), 0);
}

TEST(Picture, PngHoldsTheSizeAndAnUnwritablePathIsNamed) {
    maxhost::Picture picture(300, 2);
    const std::string path = ::testing::TempDir() + "/zk_viewport_test.png";
    picture.writePng(path);
    std::ifstream file(path, std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(file), {}};
    ASSERT_GT(bytes.size(), 24u);
    EXPECT_EQ(bytes.substr(0, 8), "\x89PNG\r\n\x1a\n");
    EXPECT_EQ(bytes.substr(16, 8), std::string("\0\0\1\x2c\0\0\0\2", 8));
    file.close();  // Windows keeps an open file
    std::filesystem::remove(path);
    try {
        picture.writePng("no/such/folder/p.png");
        FAIL();
    } catch (const std::runtime_error& error) {
        EXPECT_NE(std::strstr(error.what(), "no/such/folder/p.png"), nullptr);
    }
}

}  // namespace
