#include "apps/headless/CurveChart.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <limits>
#include <utility>

namespace headless {

namespace {

constexpr char kInk[] = "#22262b", kFaint[] = "#dfe3e8", kAxis[] = "#8a929c";

/// Distance of axis marks that gives about `wanted` of them: 1, 2 or 5 times a power of ten.
double markDistance(double span, int wanted) {
    const double raw = span / wanted, power = std::pow(10.0, std::floor(std::log10(raw)));
    const double part = raw / power;
    return power * (part <= 1 ? 1 : part <= 2 ? 2 : part <= 5 ? 5 : 10);
}

std::string label(double value, double distance) {
    const int decimals = std::max(0, static_cast<int>(std::ceil(-std::log10(distance) - 1e-9)));
    char text[32];
    std::snprintf(text, sizeof text, "%.*f", decimals, std::fabs(value) < distance / 2 ? 0.0 : value);
    return text;
}

/// Calls `mark(value, label)` for each axis mark from `low` to `high`.
template <class Mark>
void forEachMark(double low, double high, int wanted, Mark mark) {
    const double distance = markDistance(high - low, wanted);
    const double first = std::ceil(low / distance - 1e-9);
    for (double i = first; i * distance <= high + distance * 1e-9; ++i)
        mark(i * distance, label(i * distance, distance));
}

/// A range that is wide enough to be drawn.
void widen(double& low, double& high, double margin) {
    const double least = std::max(1e-6, std::max(std::fabs(low), std::fabs(high)) * 1e-6);
    const double extra = std::max((high - low) * margin, high - low < least ? least : 0.0);
    low -= extra;
    high += extra;
}

}  // namespace

CurveChart::CurveChart(Frame frame, std::string title, std::string valueLabel)
    : frame_(frame), title_(std::move(title)), valueLabel_(std::move(valueLabel)) {}

void CurveChart::draw(Svg& svg, const std::vector<Curve>& curves) {
    fit(curves);
    drawAxes(svg);
    for (const Curve& curve : curves) {
        std::vector<Svg::Point> points;
        for (const Curve::Sample& sample : curve.samples)
            points.push_back(place(sample));
        svg.polyline(points, curve.color, 1.6);
        for (const Curve::Sample& key : curve.keys)
            svg.dot(place(key), 3.2, curve.color);
    }
    drawLegend(svg, curves);
}

void CurveChart::fit(const std::vector<Curve>& curves) {
    firstSecond_ = low_ = std::numeric_limits<double>::infinity();
    lastSecond_ = high_ = -firstSecond_;
    for (const Curve& curve : curves) {
        for (const Curve::Sample& sample : curve.samples) {
            firstSecond_ = std::min(firstSecond_, sample.seconds);
            lastSecond_ = std::max(lastSecond_, sample.seconds);
            low_ = std::min(low_, sample.value);
            high_ = std::max(high_, sample.value);
        }
    }
    widen(firstSecond_, lastSecond_, 0);
    widen(low_, high_, 0.06);
}

Svg::Point CurveChart::place(const Curve::Sample& sample) const {
    return {frame_.left + (sample.seconds - firstSecond_) / (lastSecond_ - firstSecond_) * frame_.width,
            frame_.top + (high_ - sample.value) / (high_ - low_) * frame_.height};
}

void CurveChart::drawAxes(Svg& svg) const {
    const double bottom = frame_.top + frame_.height, right = frame_.left + frame_.width;
    forEachMark(low_, high_, 6, [&](double value, const std::string& text) {
        const double y = place({firstSecond_, value}).y;
        svg.line({frame_.left, y}, {right, y}, kFaint, 1);
        svg.text({frame_.left - 8, y + 4.5}, text, 13, "end", kInk);
    });
    forEachMark(firstSecond_, lastSecond_, 12, [&](double seconds, const std::string& text) {
        const double x = place({seconds, low_}).x;
        svg.line({x, frame_.top}, {x, bottom}, kFaint, 1);
        svg.text({x, bottom + 19}, text, 13, "middle", kInk);
    });
    svg.line({frame_.left, frame_.top}, {frame_.left, bottom}, kAxis, 1.2);
    svg.line({frame_.left, bottom}, {right, bottom}, kAxis, 1.2);
    svg.text({frame_.left, frame_.top - 14}, title_, 16, "start", kInk);
    svg.text({right, bottom + 38}, "time (s)", 13, "end", kInk);
    svg.verticalText({frame_.left - 58, frame_.top + frame_.height / 2}, valueLabel_, 13, kInk);
}

void CurveChart::drawLegend(Svg& svg, const std::vector<Curve>& curves) const {
    double x = frame_.left + frame_.width;
    for (auto curve = curves.rbegin(); curve != curves.rend(); ++curve) {
        svg.text({x, frame_.top - 14}, curve->name, 14, "end", kInk);
        x -= 10.0 + 7.8 * static_cast<double>(curve->name.size());
        svg.line({x - 24, frame_.top - 19}, {x, frame_.top - 19}, curve->color, 2.4);
        if (!curve->keys.empty()) svg.dot({x - 12, frame_.top - 19}, 3.6, curve->color);
        x -= 40;
    }
}

}  // namespace headless
