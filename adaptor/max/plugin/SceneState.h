#pragma once

#include "adaptor/max/Host.h"

namespace qvo::zmx::adaptor::max {

class UtilityManager;

/// Writes the state of the attached core as one chunk of XML text; a core with nothing to say writes no
/// chunk. Returns IO_OK, or what the host answers when it cannot write.
IOResult saveSceneState(UtilityManager& manager, ISave& save);

/// Hands each stored state to the attached core as it is read, and last a root named "ZMK" for the states of
/// older scenes, which comes even when it is empty. Other chunks are skipped. Returns IO_OK, or the result of
/// a read that failed, at once.
IOResult loadSceneState(UtilityManager& manager, ILoad& load);

}  // namespace qvo::zmx::adaptor::max
