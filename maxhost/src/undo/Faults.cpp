#include "maxhost/src/undo/Faults.h"

namespace maxhost {

Faults& Faults::instance() {
    // Never destroyed: objects that outlive main may still report.
    static Faults* const faults = new Faults;
    return *faults;
}

void Faults::record(const std::string& text) {
    constexpr size_t kKept = 1000;
    if (texts_.size() < kKept) texts_.push_back(text);
}

}  // namespace maxhost
