#pragma once

#include <string>
#include <utility>
#include <vector>

namespace headless {

/// Builds a well-formed SVG document. Coordinates in pixels from the upper left corner; colours as in CSS.
class Svg {
  public:
    struct Point {
        double x = 0, y = 0;
    };

    Svg(double width, double height);

    void line(Point from, Point to, const std::string& color, double width);
    void polyline(const std::vector<Point>& points, const std::string& color, double width);
    void dot(Point centre, double radius, const std::string& color);
    void rectangle(Point corner, double width, double height, const std::string& fill);
    /// `anchor`: start, middle or end. Any text; what XML cannot hold becomes '?'.
    void text(Point at, const std::string& text, double size, const std::string& anchor,
              const std::string& color);
    /// The same, read from bottom to top.
    void verticalText(Point at, const std::string& text, double size, const std::string& color);

    std::string document() const { return body_ + "</svg>\n"; }

  private:
    void element(const std::string& text) { body_ += text + "\n"; }

    std::string body_;
};

}  // namespace headless
