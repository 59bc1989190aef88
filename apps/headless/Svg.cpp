#include "apps/headless/Svg.h"

#include <cstdio>

namespace headless {

namespace {

std::string number(double value) {
    char text[32];
    std::snprintf(text, sizeof text, "%.6g", value);
    return text;
}

std::string attribute(const char* name, double value) {
    return std::string(" ") + name + "=\"" + number(value) + '"';
}

std::string attribute(const char* name, const std::string& value) {
    return std::string(" ") + name + "=\"" + value + '"';
}

/// Node names are bytes of any code page: only ASCII is passed on.
std::string escaped(const std::string& text) {
    std::string result;
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (c == '&') {
            result += "&amp;";
        } else if (c == '<') {
            result += "&lt;";
        } else if (c == '>') {
            result += "&gt;";
        } else if (byte < 0x20 || byte > 0x7e) {
            result += '?';
        } else {
            result += c;
        }
    }
    return result;
}

}  // namespace

Svg::Svg(double width, double height) {
    element("<?xml version=\"1.0\" encoding=\"UTF-8\"?>");
    element("<svg xmlns=\"http://www.w3.org/2000/svg\"" + attribute("width", width) +
            attribute("height", height) + " viewBox=\"0 0 " + number(width) + ' ' + number(height) +
            "\" font-family=\"DejaVu Sans, Verdana, Arial, sans-serif\">");
    rectangle({0, 0}, width, height, "#ffffff");
}

void Svg::line(Point from, Point to, const std::string& color, double width) {
    element("<line" + attribute("x1", from.x) + attribute("y1", from.y) + attribute("x2", to.x) +
            attribute("y2", to.y) + attribute("stroke", color) + attribute("stroke-width", width) + "/>");
}

void Svg::polyline(const std::vector<Point>& points, const std::string& color, double width) {
    std::string list;
    for (const Point& point : points)
        list += (list.empty() ? "" : " ") + number(point.x) + ',' + number(point.y);
    element("<polyline fill=\"none\" stroke-linejoin=\"round\"" + attribute("stroke", color) +
            attribute("stroke-width", width) + attribute("points", list) + "/>");
}

void Svg::dot(Point centre, double radius, const std::string& color) {
    element("<circle" + attribute("cx", centre.x) + attribute("cy", centre.y) + attribute("r", radius) +
            attribute("fill", color) + "/>");
}

void Svg::rectangle(Point corner, double width, double height, const std::string& fill) {
    element("<rect" + attribute("x", corner.x) + attribute("y", corner.y) + attribute("width", width) +
            attribute("height", height) + attribute("fill", fill) + "/>");
}

void Svg::text(Point at, const std::string& text, double size, const std::string& anchor,
               const std::string& color) {
    element("<text" + attribute("x", at.x) + attribute("y", at.y) + attribute("font-size", size) +
            attribute("text-anchor", anchor) + attribute("fill", color) + '>' + escaped(text) + "</text>");
}

void Svg::verticalText(Point at, const std::string& text, double size, const std::string& color) {
    element("<text transform=\"translate(" + number(at.x) + ' ' + number(at.y) + ") rotate(-90)\"" +
            attribute("font-size", size) + " text-anchor=\"middle\"" + attribute("fill", color) + '>' +
            escaped(text) + "</text>");
}

}  // namespace headless
