#include "maxhost/src/references/RecordHold.h"

#include "maxhost/src/references/ReferenceAccess.h"

namespace maxhost {

RecordHold::RecordHold(ReferenceMaker* object) : object_(object) {
    if (object_ != nullptr) ReferenceAccess::hold(*object_);
}

RecordHold::~RecordHold() {
    if (object_ != nullptr) ReferenceAccess::release(*object_);
}

void RecordHold::expectOrphan() {
    if (object_ != nullptr) ReferenceAccess::markPossibleOrphan(*object_);
}

}  // namespace maxhost
