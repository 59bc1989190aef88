#include "adaptor/max/plugin/CTimeChangeCallback.h"

#include "adaptor/max/Boundary.h"
#include "adaptor/max/nodes/HostTime.h"
#include "adaptor/max/plugin/UtilityManager.h"

namespace qvo::zmx::adaptor::max {

void CTimeChangeCallback::TimeChanged(TimeValue ticks) {
    core::CoreObject* const core = UtilityManager::instance().core;
    if (!core) return;
    guarded("timeChanged", [&] { core->timeChanged(secondsFromTicks(ticks)); });
}

}  // namespace qvo::zmx::adaptor::max
