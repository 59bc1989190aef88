#pragma once

#include <max.h>

#include <map>
#include <string>
#include <utility>
#include <vector>

namespace maxhost {

/// The plug-in classes that the host knows, by super class id and class id. Descriptors belong to their
/// libraries and must be taken out before the library is freed.
class CoreExport ClassDirectory {
  public:
    /// Registers a class; its ids are asked here and never again. False for a second class of the same ids:
    /// the first one stays.
    bool add(ClassDesc* descriptor);

    void remove(ClassDesc* descriptor);

    /// Null when no such class is registered.
    ClassDesc* find(SClass_ID superClass, Class_ID classId) const;

    /// All classes of a super class, in order of registration.
    std::vector<ClassDesc*> ofSuperClass(SClass_ID superClass) const;

    /// A new instance of a registered class, owned by the caller; null when there is none.
    /// loading   whether a scene file is being read
    void* createInstance(SClass_ID superClass, Class_ID classId, BOOL loading = FALSE) const;

  private:
    using Key = std::pair<SClass_ID, Class_ID>;

    std::map<Key, ClassDesc*> byId;
    std::vector<std::pair<SClass_ID, ClassDesc*>> inOrder;
};

}  // namespace maxhost
