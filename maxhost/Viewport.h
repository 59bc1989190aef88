#pragma once

#include <string>
#include <vector>

#include <maxapi.h>

#include "maxhost/Picture.h"

namespace maxhost {

/// How a scene is shown by several moments side by side.
struct ContactSheet {
    int columns = 3;
    int cellWidth = 640, cellHeight = 480;
    /// Stands above the moments; empty for none.
    std::string title;
    /// Length of one tick in frames for the labels below the moments: 1 / ticks per frame. 0 takes the host's
    /// present frame rate.
    double framesPerTick = 0;
};

/// Draws the scene at each of `times`, all from one place that shows everything at all of them: three
/// quarters from above, in perspective, on a ground grid. Nodes are drawn by their objects, and besides as
/// joints with a bone to their parent, in their wire colours; hidden nodes are left out. The scene and its
/// time stay as they are. An empty list of times gives a picture of the title alone.
CoreExport Picture renderContactSheet(Interface& host, const std::vector<TimeValue>& times,
                                      const ContactSheet& sheet = ContactSheet());

}  // namespace maxhost
