#include "adaptor/max/nodes/NodeInstanceRestoreObj.h"

#include "adaptor/max/Boundary.h"
#include "adaptor/max/nodes/CMAXNode.h"
#include "adaptor/max/services/MaxAdaptorInterface.h"

namespace qvo::zmx::adaptor::max {

NodeInstanceRestoreObj::NodeInstanceRestoreObj(CMAXNode& wrapper, bool present)
    : wrapper_(&wrapper), present_(present) {
    wrapper.holdBy(*this);
}

NodeInstanceRestoreObj::~NodeInstanceRestoreObj() {
    if (!wrapper_) return;
    wrapper_->letGoBy(*this);
    if (!present_ && !wrapper_->isRemoved())
        wrapper_->destroy();
    else
        wrapper_->destroyIfAbandoned();
}

void NodeInstanceRestoreObj::restore(bool /*isUndo*/) {
    if (!wrapper_) return;
    NodeRegistry& nodes = MaxAdaptorInterface::instance().nodes();
    present_ = !present_;
    if (present_) {
        if (!wrapper_->isAbandoned() && !wrapper_->isRemoved()) nodes.add(*wrapper_);
        if (wrapper_->listener)
            guarded("NodeListener::restored", [&] { wrapper_->listener->restored(wrapper_); });
    } else {
        if (wrapper_->listener)
            guarded("NodeListener::removed", [&] { wrapper_->listener->removed(wrapper_); });
        if (wrapper_) nodes.remove(*wrapper_);  // the listener may have destroyed it
    }
}

}  // namespace qvo::zmx::adaptor::max
