#pragma once

#include <maxapi.h>

#include <string>
#include <vector>

namespace headless {

/// A helper node of the open scene.
struct Joint {
    std::string name;
    INode* node = nullptr;
};

/// All helper nodes, parents before children.
std::vector<Joint> joints(Interface& host);

/// The times of all keys of the joints' transform controllers, each once, rising.
std::vector<TimeValue> keyTimes(const std::vector<Joint>& joints);

/// How many keys those controllers have together.
std::size_t keyCount(const std::vector<Joint>& joints);

}  // namespace headless
