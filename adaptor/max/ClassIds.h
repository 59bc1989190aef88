#pragma once

#include "adaptor/max/Host.h"

/// Numbers that users' scene files hold. Changing one of them makes existing scenes lose what it stands for.

namespace qvo::zmx::adaptor::max {

inline const Class_ID kUtilityClassId(0x5C9473F4, 0x7D2E4160);
inline const Class_ID kUtilityObjClassId(0x7F8230EF, 0x2909190A);
inline const Class_ID kHelperClassId(0x22E322A5, 0x3010606F);
inline const Class_ID kTransformControlClassId(0x708B15A4, 0x2AFA7C85);
inline const Class_ID kScalarControlClassId(0x2ADE2E71, 0x21430FA0);

/// Chunk of the global utility that holds one state of the core as XML text.
inline constexpr USHORT kStateChunk = 0x0408;

/// The same in scenes of older versions, in a binary form.
inline constexpr USHORT kOlderStateChunk = 0x0400;

}  // namespace qvo::zmx::adaptor::max
