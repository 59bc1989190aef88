#pragma once

#include <string>
#include <vector>

#include <coreexp.h>

namespace maxhost {

/// Notes of callers' mistakes that the real host would answer with undefined behaviour, such as `Put` outside
/// a hold. The host goes on; tests and the command line ask for the notes. Only the first 1,000 are kept.
class CoreExport Faults {
  public:
    static Faults& instance();

    void record(const std::string& text);
    const std::vector<std::string>& all() const { return texts_; }
    void clear() { texts_.clear(); }

  private:
    std::vector<std::string> texts_;
};

}  // namespace maxhost
