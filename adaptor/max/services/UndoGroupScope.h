#pragma once

#include <string>

#include "adaptor/max/services/MaxAdaptorInterface.h"

namespace qvo::zmx::adaptor::max {

/// An undo group of the adaptor's own, which ends on every path.
class UndoGroupScope {
  public:
    explicit UndoGroupScope(const std::string& name) { MaxAdaptorInterface::instance().beginUndoGroup(name); }
    ~UndoGroupScope() { MaxAdaptorInterface::instance().endUndoGroup(); }
    UndoGroupScope(const UndoGroupScope&) = delete;
    UndoGroupScope& operator=(const UndoGroupScope&) = delete;
};

}  // namespace qvo::zmx::adaptor::max
