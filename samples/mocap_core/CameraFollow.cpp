#include "samples/mocap_core/CameraFollow.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>
#include <utility>

#include "samples/mocap_core/BorrowedSnapshot.h"
#include "samples/mocap_core/KeyBatch.h"
#include "samples/mocap_core/TakeChange.h"
#include "samples/mocap_core/TakeNames.h"

namespace qvo::zmx::mocap {

namespace {

using util::Point3d;

constexpr double kDegreesPerRadian = 57.29577951308232;
constexpr double kStart = 0.0;                  // seconds
constexpr double kDistance = 3.0;               // figure sizes from the hips
constexpr double kShare = 1.6;                  // width of the picture in figure sizes
constexpr double kNarrowest = 2.0;              // degrees
constexpr double kWidest = 120.0;               // degrees
constexpr double kSmallestSize = 0.1;           // meters
constexpr Point3d kFromFront{0.48, 0.2, 0.86};  // direction from the hips to the camera, about unit length

Point3d difference(const Point3d& a, const Point3d& b) {
    return {a.x - b.x, a.y - b.y, a.z - b.z};
}

double length(const Point3d& v) {
    return std::sqrt(v.x * v.x + v.y * v.y + v.z * v.z);
}

Point3d positionOf(const Matrix4& world) {
    return {world.m[3][0], world.m[3][1], world.m[3][2]};
}

/// The world matrix of a camera at `eye` that looks at `target` along its negative third axis, its second
/// axis pointing up, all axes `scale` long. Looks ahead when the two are one.
Matrix4 lookingAt(const Point3d& eye, const Point3d& target, double scale) {
    const Point3d away = difference(eye, target);
    const double distance = length(away);
    const double across = std::hypot(away.x, away.z);
    const Point3d back =
        distance > 0.0 ? Point3d{away.x / distance, away.y / distance, away.z / distance} : Point3d{0, 0, 1};
    const Point3d right = across > 0.0 ? Point3d{away.z / across, 0, -away.x / across} : Point3d{1, 0, 0};
    const Point3d up{back.y * right.z - back.z * right.y, back.z * right.x - back.x * right.z,
                     back.x * right.y - back.y * right.x};
    return {{{right.x * scale, right.y * scale, right.z * scale, 0},
             {up.x * scale, up.y * scale, up.z * scale, 0},
             {back.x * scale, back.y * scale, back.z * scale, 0},
             {eye.x, eye.y, eye.z, 1}}};
}

double fieldOfView(double figureSize, double distance) {
    const double angle = 2.0 * std::atan2(figureSize * kShare / 2.0, distance) * kDegreesPerRadian;
    return std::clamp(angle, kNarrowest, kWidest);
}

/// A camera's lens at one moment, given back at the end of its life.
class BorrowedLens {
  public:
    BorrowedLens(core::CoreNode& node, double seconds)
        : node_(node), lens_(node.acquireLensSnapshot(seconds)) {}
    BorrowedLens(const BorrowedLens&) = delete;
    BorrowedLens& operator=(const BorrowedLens&) = delete;
    ~BorrowedLens() {
        if (lens_) node_.releaseLensSnapshot(lens_);
    }

    bool isThere() const { return lens_ != nullptr; }
    void setFieldOfView(double degrees) {
        if (lens_) lens_->setFieldOfView(degrees);
    }

  private:
    core::CoreNode& node_;
    core::CoreNode::Snapshot_Lens* lens_;  // null for a node that is no camera
};

}  // namespace

void CameraFollow::follow(core::CoreNode& view) {
    core::CoreNode& camera = claim(view);
    const Setup setup = setUp();
    const core::AdaptorInterface::TimeRange range = adaptor_.getAnimationRange();
    for (const ClipRecord& clip : take_.record().clips) {
        const FrameGrid grid(adaptor_.getFrameRate(), clip.frameTime, clip.frames, clip.firstTick);
        if (grid.multiplier() != grid_.multiplier()) grid_.change({grid.multiplier(), range});
        writeKeys(camera, setup, grid, clip.frames);
    }
}

core::CoreNode& CameraFollow::claim(core::CoreNode& view) {
    const std::string name = view.getName();
    TakeRecord record = take_.record();
    if (!record.camera.empty() && take_.node(record.camera))
        throw std::runtime_error("take \"" + record.name + "\" has a camera already");
    if (!BorrowedLens(view, kStart).isThere()) throw std::runtime_error("\"" + name + "\" is no camera");
    core::CoreNode* const camera = view.claim(&take_, name);
    if (!camera) throw std::runtime_error("camera \"" + name + "\" belongs to another take");
    record.camera = uniqueNodeName(take_, name);
    take_.addNode(record.camera, *camera);
    TakeChange::make(adaptor_, take_, std::move(record));
    return *camera;
}

CameraFollow::Setup CameraFollow::setUp() const {
    const Point3d hips = hipsAt(kStart);
    double size = kSmallestSize;
    for (const std::string& joint : take_.record().joints) {
        core::CoreNode* const node = take_.node(joint);
        if (!node) continue;
        const Point3d place = positionOf(BorrowedSnapshot(*node, kStart).worldTransform());
        size = std::max(size, 2.0 * length(difference(place, hips)));
    }
    const double distance = size * kDistance;
    return {{hips.x + kFromFront.x * distance, hips.y + kFromFront.y * distance,
             hips.z + kFromFront.z * distance},
            size};
}

void CameraFollow::writeKeys(core::CoreNode& camera, const Setup& setup, const FrameGrid& grid,
                             std::size_t frames) {
    // A camera that was made by hand is as long as the host's unit; it shall not be stretched.
    const Matrix4 before = BorrowedSnapshot(camera, kStart).worldTransform();
    const double scale = std::hypot(before.m[0][0], before.m[0][1], before.m[0][2]);
    const KeyBatch batch(adaptor_);
    for (std::size_t frame = 0; frame < frames; ++frame) {
        const double seconds = grid.secondsOf(frame);
        const Point3d hips = hipsAt(seconds);
        if (!BorrowedSnapshot(camera, seconds)
                 .setWorldTransform(lookingAt(setup.eye, hips, scale > 0.0 ? scale : 1.0)))
            throw std::runtime_error("the host refused frame " + std::to_string(frame + 1) +
                                     " of the camera");
        BorrowedLens(camera, seconds)
            .setFieldOfView(fieldOfView(setup.figureSize, length(difference(setup.eye, hips))));
    }
}

util::Point3d CameraFollow::hipsAt(double seconds) const {
    core::CoreNode* const hips = take_.node(take_.record().joints.front());
    if (!hips) throw std::runtime_error("take \"" + take_.record().name + "\" has no hips to follow");
    return positionOf(BorrowedSnapshot(*hips, seconds).worldTransform());
}

}  // namespace qvo::zmx::mocap
