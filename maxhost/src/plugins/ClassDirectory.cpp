#include "maxhost/src/plugins/ClassDirectory.h"

#include <algorithm>

namespace maxhost {

bool ClassDirectory::add(ClassDesc* descriptor) {
    const Key key(descriptor->SuperClassID(), descriptor->ClassID());
    if (!byId.emplace(key, descriptor).second) return false;
    inOrder.emplace_back(key.first, descriptor);
    return true;
}

void ClassDirectory::remove(ClassDesc* descriptor) {
    for (auto each = byId.begin(); each != byId.end();) {
        each = each->second == descriptor ? byId.erase(each) : std::next(each);
    }
    const auto isDescriptor = [&](const auto& each) { return each.second == descriptor; };
    inOrder.erase(std::remove_if(inOrder.begin(), inOrder.end(), isDescriptor), inOrder.end());
}

ClassDesc* ClassDirectory::find(SClass_ID superClass, Class_ID classId) const {
    const auto found = byId.find(Key(superClass, classId));
    return found == byId.end() ? nullptr : found->second;
}

std::vector<ClassDesc*> ClassDirectory::ofSuperClass(SClass_ID superClass) const {
    std::vector<ClassDesc*> classes;
    for (const auto& [id, descriptor] : inOrder) {
        if (id == superClass) classes.push_back(descriptor);
    }
    return classes;
}

void* ClassDirectory::createInstance(SClass_ID superClass, Class_ID classId, BOOL loading) const {
    ClassDesc* const descriptor = find(superClass, classId);
    return descriptor == nullptr ? nullptr : descriptor->Create(loading);
}

}  // namespace maxhost
