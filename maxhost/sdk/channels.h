#pragma once

#include "maxtypes.h"

/// Says which parts of an object a message is about. Pointer-sized: some messages carry a pointer in it.
typedef ULONG_PTR PartID;
typedef ULONG ChannelMask;

constexpr PartID PART_TOPO = PartID(1) << 0;
constexpr PartID PART_GEOM = PartID(1) << 1;
constexpr PartID PART_TEXMAP = PartID(1) << 2;
constexpr PartID PART_MTL = PartID(1) << 3;
constexpr PartID PART_SELECT = PartID(1) << 4;
constexpr PartID PART_SUBSEL_TYPE = PartID(1) << 5;
constexpr PartID PART_DISPLAY = PartID(1) << 6;
constexpr PartID PART_VERTCOLOR = PartID(1) << 7;
constexpr PartID PART_GFX_DATA = PartID(1) << 8;
constexpr PartID PART_DISP_APPROX = PartID(1) << 9;
constexpr PartID PART_OBJECT_TM = PartID(1) << 10;
/// The node's transform changed.
constexpr PartID PART_TM = PartID(1) << 12;
constexpr PartID PART_EXTENSION = PartID(1) << 13;
constexpr PartID PART_MTL_GLOBAL = PartID(1) << 31;

constexpr PartID OBJ_CHANNELS = 0x000023FF;
constexpr PartID ALL_CHANNELS = OBJ_CHANNELS | PART_OBJECT_TM | PART_MTL_GLOBAL;
constexpr PartID PART_ALL = ALL_CHANNELS | PART_TM;
static_assert(PART_ALL == 0x800037FF, "zero-extended, never sign-extended");
