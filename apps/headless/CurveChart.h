#pragma once

#include <string>
#include <vector>

#include "apps/headless/Svg.h"

namespace headless {

/// One value over time: the curve as it is evaluated, and the keys that it comes from.
struct Curve {
    struct Sample {
        double seconds = 0, value = 0;
    };

    std::string name, color;
    std::vector<Sample> samples;
    std::vector<Sample> keys;  // drawn as dots; may be empty
};

/// A chart of several curves with axes, grid and legend.
class CurveChart {
  public:
    struct Frame {
        double left = 0, top = 0, width = 0, height = 0;
    };

    /// `frame` is the plot's own area; labels and title stand outside it.
    CurveChart(Frame frame, std::string title, std::string valueLabel);

    /// Draws all curves on common axes; at least one curve must have a sample.
    void draw(Svg& svg, const std::vector<Curve>& curves);

  private:
    void fit(const std::vector<Curve>& curves);
    void drawAxes(Svg& svg) const;
    void drawLegend(Svg& svg, const std::vector<Curve>& curves) const;
    Svg::Point place(const Curve::Sample& sample) const;

    Frame frame_;
    std::string title_, valueLabel_;
    double firstSecond_ = 0, lastSecond_ = 1, low_ = 0, high_ = 1;
};

}  // namespace headless
