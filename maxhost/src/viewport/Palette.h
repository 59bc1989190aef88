#pragma once

#include <acolor.h>

/// The viewport's own colours, as display values.
namespace maxhost::palette {

const Color kBackground(0.165f, 0.180f, 0.205f);
const Color kGround(0.250f, 0.268f, 0.298f);
const Color kGrid(0.62f, 0.66f, 0.72f);
const Color kShadow(0.155f, 0.167f, 0.19f);
const Color kTrail(0.95f, 0.78f, 0.35f);
const Color kCaption(0.86f, 0.88f, 0.91f);
const Color kFaintCaption(0.58f, 0.61f, 0.66f);
const Color kGap(0.10f, 0.11f, 0.125f);

}  // namespace maxhost::palette
