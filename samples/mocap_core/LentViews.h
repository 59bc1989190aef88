#pragma once

#include <cstddef>
#include <utility>
#include <vector>

#include "core/CoreNode.h"

namespace qvo::zmx::mocap {

/// Views that the adaptor lends, given back at the end of their life. Entries may be null.
class LentViews {
  public:
    LentViews() = default;
    explicit LentViews(std::vector<core::CoreNode*> views) : views_(std::move(views)) {}
    LentViews(const LentViews&) = delete;
    LentViews& operator=(const LentViews&) = delete;
    ~LentViews() {
        for (core::CoreNode* const view : views_)
            if (view) view->releaseNode(view);
    }

    void add(const std::vector<core::CoreNode*>& views) {
        views_.insert(views_.end(), views.begin(), views.end());
    }

    const std::vector<core::CoreNode*>& all() const { return views_; }

  private:
    std::vector<core::CoreNode*> views_;
};

}  // namespace qvo::zmx::mocap
