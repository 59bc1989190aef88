#include "adaptor/max/nodes/SelectionBatch.h"

#include <utility>

#include "adaptor/max/Host.h"

namespace qvo::zmx::adaptor::max {
namespace {

bool batchIsOpen = false;

}  // namespace

bool SelectionBatch::open() {
    if (batchIsOpen) return false;
    batchIsOpen = true;
    GetCOREInterface()->ClearNodeSelection(FALSE);
    return true;
}

bool SelectionBatch::close() {
    return std::exchange(batchIsOpen, false);
}

bool SelectionBatch::isOpen() {
    return batchIsOpen;
}

}  // namespace qvo::zmx::adaptor::max
