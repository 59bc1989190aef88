#include "samples/mocap_core/TakeChange.h"

#include <memory>
#include <stdexcept>

#include "samples/mocap_core/Guarded.h"

namespace qvo::zmx::mocap {

void TakeChange::make(core::AdaptorInterface& adaptor, Take& take, TakeRecord after) {
    auto record = std::make_unique<TakeChange>(take, after);
    if (adaptor.addUndoRecord(record.release()) != 0)  // the adaptor owns it from here on, also when refused
        throw std::runtime_error("the host does not record undo");
    take.setRecord(std::move(after));
}

void TakeChange::restore(bool /*isUndo*/) {
    guarded("restore", [this] { take_.setRecord(before_); });
}

void TakeChange::redo() {
    guarded("redo", [this] { take_.setRecord(after_); });
}

}  // namespace qvo::zmx::mocap
