#pragma once

namespace qvo::zmx {

/// One undoable change. Whoever receives a record through AdaptorInterface::addUndoRecord owns it and
/// disposes of it by release(), which runs on the side that made it.
class CUndo {
  public:
    /// Takes the change back: `isUndo` is true for a user's undo, false when the open group is being
    /// cancelled.
    virtual void restore(bool isUndo) = 0;  // slot 0

    /// Makes the change again.
    virtual void redo() = 0;  // slot 1

    /// Disposes of the record.
    virtual void release() { delete this; }  // slot 2

    virtual ~CUndo() = default;  // slot 3

  protected:
    CUndo() = default;
    CUndo(const CUndo&) = default;
    CUndo& operator=(const CUndo&) = default;
};

}  // namespace qvo::zmx
