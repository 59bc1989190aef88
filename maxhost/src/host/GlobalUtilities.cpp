#include "maxhost/src/host/GlobalUtilities.h"

#include <algorithm>
#include <utility>

namespace maxhost {

bool GlobalUtilities::startAll(const ClassDirectory& directory) {
    for (ClassDesc* descriptor : directory.ofSuperClass(GUP_CLASS_ID)) {
        if (std::find(tried_.begin(), tried_.end(), descriptor) != tried_.end()) continue;
        tried_.push_back(descriptor);
        GUP* const utility = static_cast<GUP*>(descriptor->Create(FALSE));
        if (utility == nullptr) continue;
        // Listed while it starts: its own start may look for it.
        running_.push_back({descriptor->ClassID(), descriptor->ClassName(), utility});
        const DWORD result = utility->Start();
        if (result == GUPRESULT_KEEP) continue;
        running_.pop_back();
        utility->DeleteThis();
        if (result == GUPRESULT_ABORT) return false;
    }
    return true;
}

void GlobalUtilities::stopAll() {
    const std::vector<Utility> stopping = std::exchange(running_, {});
    for (const Utility& each : stopping) {
        each.utility->Stop();
        each.utility->DeleteThis();
    }
    tried_.clear();
}

GUP* GlobalUtilities::find(Class_ID classId) const {
    for (const Utility& each : running_)
        if (each.classId == classId) return each.utility;
    return nullptr;
}

}  // namespace maxhost
