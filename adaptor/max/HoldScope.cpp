#include "adaptor/max/HoldScope.h"

namespace qvo::zmx::adaptor::max {

HoldScope::HoldScope(const char* name)
    : name_(name), ownsHold_(!theHold.Holding() && !theHold.RestoreOrRedoing()) {
    if (ownsHold_) theHold.Begin();
}

HoldScope::~HoldScope() {
    if (ownsHold_ && theHold.GetBeginDepth() > 0) theHold.Accept(name_.data());
}

void HoldScope::cancel() {
    if (ownsHold_ && theHold.GetBeginDepth() > 0) theHold.Cancel();
    ownsHold_ = false;
}

}  // namespace qvo::zmx::adaptor::max
