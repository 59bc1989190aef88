#include "adaptor/max/services/HoldScope.h"

#include <string>

namespace qvo::zmx::adaptor::max {

HoldScope::HoldScope(const char* name)
    : name_(name), ownsHold_(!theHold.Holding() && !theHold.RestoreOrRedoing()) {
    if (ownsHold_) theHold.Begin();
}

HoldScope::~HoldScope() {
    if (!ownsHold_ || !theHold.Holding()) return;
    std::string name = name_;  // the host's call takes a text that is not const
    theHold.Accept(name.data());
}

void HoldScope::cancel() {
    if (ownsHold_ && theHold.Holding()) theHold.Cancel();
    ownsHold_ = false;
}

}  // namespace qvo::zmx::adaptor::max
