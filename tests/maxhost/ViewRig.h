#pragma once

#include <gtest/gtest.h>
#include <object.h>

#include <cmath>
#include <string>

#include "maxhost/src/viewport/SoftwareView.h"

/// A view from the front (along +Y) that shows the given box, black where nothing is drawn.
class ViewRig {
  public:
    explicit ViewRig(const Box3& shown) { camera_.frame({shown.pmin, shown.pmax}, 0.2, 1); }

    ViewExp& view() { return view_; }
    GraphicsWindow& window() { return *view_.getGW(); }

    IPoint2 pixelOf(const Point3& world) const {
        maxhost::ScreenPoint place;
        EXPECT_TRUE(painter_.locate(world, place));
        return IPoint2(static_cast<int>(std::floor(place.x)), static_cast<int>(std::floor(place.y)));
    }

    /// What is drawn at that place, give or take a pixel: "black", or the bright channels among "rgb".
    std::string colorAt(const Point3& world) const {
        const IPoint2 middle = pixelOf(world);
        const maxhost::Picture picture = samples_.resolve();
        bool bright[3] = {};
        for (int i = 0; i < 27; ++i) {
            const int x = middle.x + i / 3 % 3 - 1, y = middle.y + i / 9 - 1;
            bright[i % 3] = bright[i % 3] || picture.pixel(x, y)[i % 3] > 60;
        }
        std::string channels;
        for (int i = 0; i < 3; ++i)
            if (bright[i]) channels += "rgb"[i];
        return channels.empty() ? "black" : channels;
    }

  private:
    maxhost::Camera camera_{{0, 0, 32}, 200, 200};
    maxhost::SampleBuffer samples_{200, 200, 1, maxhost::LinearColor()};
    maxhost::WorldPainter painter_{camera_, samples_};
    maxhost::SoftwareView view_{painter_};
};
