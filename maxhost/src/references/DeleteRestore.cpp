#include "maxhost/src/references/DeleteRestore.h"

namespace maxhost {

DeleteRestore::~DeleteRestore() {
    if (!object_.TestAFlag(A_IS_DELETED)) hold_.expectOrphan();
}

void DeleteRestore::Restore(int) {
    object_.ClearAFlag(A_IS_DELETED);
}
void DeleteRestore::Redo() {
    object_.SetAFlag(A_IS_DELETED);
}

}  // namespace maxhost
