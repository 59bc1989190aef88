#pragma once

#include <ref.h>

namespace maxhost {

/// Keeps an object constructed as long as an undo record needs it. A deleted object is destroyed when the
/// last hold on it ends. Part of every record that points to an object of the reference system.
class CoreExport RecordHold {
  public:
    /// `object` may be null.
    explicit RecordHold(ReferenceMaker* object);
    ~RecordHold();
    RecordHold(const RecordHold&) = delete;
    RecordHold& operator=(const RecordHold&) = delete;

    /// To be called before a record dies that has been undone and whose doing had brought the object into
    /// use: if nothing refers to the object when the last hold ends, it is auto-deleted, since nobody else
    /// knows it.
    void expectOrphan();

  private:
    ReferenceMaker* object_;
};

}  // namespace maxhost
