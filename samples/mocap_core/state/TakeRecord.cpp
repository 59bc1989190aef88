#include "samples/mocap_core/state/TakeRecord.h"

#include <cstddef>
#include <random>

namespace qvo::zmx::mocap {

std::vector<std::string> TakeRecord::nodeNames() const {
    std::vector<std::string> names = joints;
    for (const PropRecord& prop : props)
        names.push_back(prop.name);
    if (!camera.empty()) names.push_back(camera);
    return names;
}

std::string TakeRecord::freshId() {
    constexpr char kDigits[] = "0123456789abcdef";
    constexpr std::size_t kLength = 16;
    std::random_device source;
    std::uniform_int_distribution<int> digit(0, 15);
    std::string id;
    while (id.size() < kLength)
        id += kDigits[digit(source)];
    return id;
}

}  // namespace qvo::zmx::mocap
