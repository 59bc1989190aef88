#include "apps/headless/CurvesSvg.h"

#include <algorithm>

#include "apps/headless/CurveChart.h"
#include "apps/headless/FileText.h"

namespace headless {

namespace {

constexpr double kWidth = 1240, kHeight = 820;
constexpr std::size_t kKeysInDetail = 36;

/// Clip frames from `first` to `last`.
struct Stretch {
    std::size_t first = 0, last = 0;
};

/// The three positions of one joint as curves.
class JointCurves {
  public:
    JointCurves(Interface& host, const Playback& playback)
        : playback_(playback),
          joint_(playback.liveliestJoint()),
          node_(joints(host)[joint_].node),
          units_(unitsPerMetre()),
          ticksPerSecond_(static_cast<double>(GetTicksPerFrame()) * GetFrameRate()) {}

    const std::string& name() const { return playback_.names()[joint_]; }

    /// `samples` evaluations evenly over the stretch, and on demand its keys.
    std::vector<Curve> over(Stretch stretch, int samples, bool withKeys) const {
        std::vector<Curve> curves = {
            {"X", "#d1495b", {}, {}}, {"Y (up)", "#2e8b57", {}, {}}, {"Z", "#2d6cdf", {}, {}}};
        const std::int64_t start = playback_.times()[stretch.first], end = playback_.times()[stretch.last];
        for (int i = 0; i <= samples; ++i)
            add(curves, &Curve::samples, static_cast<TimeValue>(start + (end - start) * i / samples));
        for (std::size_t frame = stretch.first; withKeys && frame <= stretch.last; ++frame)
            add(curves, &Curve::keys, playback_.times()[frame]);
        return curves;
    }

    /// Where the joint covers the longest way in so many keys.
    Stretch liveliest(std::size_t keys) const {
        const std::size_t frames = playback_.times().size(), length = std::min(keys, frames) - 1;
        Stretch best{0, length};
        double way = 0, longest = 0;
        for (std::size_t last = 1; last < frames; ++last) {
            way += step(last);
            if (last > length) way -= step(last - length);
            if (last >= length && way > longest) {
                longest = way;
                best = {last - length, last};
            }
        }
        return best;
    }

  private:
    double step(std::size_t frame) const {
        return distance(playback_.position(frame - 1, joint_), playback_.position(frame, joint_));
    }

    void add(std::vector<Curve>& curves, std::vector<Curve::Sample> Curve::*where, TimeValue time) const {
        const CorePoint p = corePoint(node_->GetNodeTM(time).GetTrans(), units_);
        const double values[3] = {p.x, p.y, p.z};
        for (std::size_t i = 0; i < curves.size(); ++i)
            (curves[i].*where).push_back({time / ticksPerSecond_, values[i]});
    }

    const Playback& playback_;
    std::size_t joint_;
    INode* node_;
    double units_, ticksPerSecond_;
};

std::string framesText(Stretch stretch) {
    return "frames " + std::to_string(stretch.first) + " to " + std::to_string(stretch.last);
}

}  // namespace

void writeCurvesSvg(const std::string& path, Interface& host, const Playback& playback) {
    Svg svg(kWidth, kHeight);
    if (playback.times().empty()) {
        svg.text({kWidth / 2, kHeight / 2}, "The scene has no joint with keys.", 18, "middle", "#22262b");
        writeText(path, svg.document());
        return;
    }
    const JointCurves curves(host, playback);
    const Stretch whole{0, playback.times().size() - 1}, detail = curves.liveliest(kKeysInDetail);
    CurveChart({96, 64, kWidth - 136, 280}, curves.name() + ": the whole clip, " + framesText(whole),
               "world position (m)")
        .draw(svg, curves.over(whole, 1100, false));
    CurveChart({96, 464, kWidth - 136, 280},
               curves.name() + ": " + framesText(detail) + ", keys as dots on the evaluated curve",
               "world position (m)")
        .draw(svg, curves.over(detail, 700, true));
    writeText(path, svg.document());
}

}  // namespace headless
