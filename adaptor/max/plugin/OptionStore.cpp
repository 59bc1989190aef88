#include "adaptor/max/plugin/OptionStore.h"

namespace qvo::zmx::adaptor::max {

bool OptionStore::value(unsigned int id) const {
    const auto found = values_.find(id);
    return found != values_.end() ? found->second : defaultValue(id);
}

}  // namespace qvo::zmx::adaptor::max
