#pragma once

#include "adaptor/max/Boundary.h"
#include "adaptor/max/Host.h"
#include "adaptor/max/controllers/LiveRef.h"
#include "adaptor/max/controllers/ZorvaKey.h"

namespace qvo::zmx::adaptor::max {

/// What the undo records of the controllers have in common. A record refers to its controller without owning
/// it and does nothing once the controller is gone; when it changes something, the controller's dependents
/// are told.
///
/// A record finds its key by index and time, else by time alone, else it does nothing; so it does no harm to
/// a table that was changed behind the host's back. There may be millions of records: each is a few words,
/// and the ones for added keys hold the key only while it is undone.
template <typename Controller, typename Key>
class ControlKeyRestore : public RestoreObj {
  public:
    void Restore(int isUndo) final {
        run("Restore", [this, isUndo](Controller& controller) { return undoEdit(controller, isUndo != 0); });
    }
    void Redo() final {
        run("Redo", [this](Controller& controller) { return redoEdit(controller); });
    }
    int Size() final { return 24; }
    TSTR Description() final { return TSTR("---"); }

  protected:
    explicit ControlKeyRestore(const Controller& controller) : controller_(controller.liveRef()) {}

    /// Both answer whether anything changed.
    virtual bool undoEdit(Controller& controller, bool isUndo) = 0;
    virtual bool redoEdit(Controller& controller) = 0;

    static auto& keysOf(Controller& controller) { return controller.keys_; }
    static Key& currentOf(Controller& controller) { return controller.current_; }
    static bool& unkeyedOf(Controller& controller) { return controller.unkeyed_; }
    static bool isUnkeyed(const Controller& controller) { return controller.unkeyed_; }

    /// Index of the key that was at `index` with the time `t`, or -1.
    static int locate(Controller& controller, int index, TimeValue t) {
        const auto& keys = keysOf(controller);
        return keys.isIndex(index) && keys[index].time == t ? index : keys.indexOf(t);
    }

    /// Puts `key` where its time belongs; false when another key has that time.
    static bool insert(Controller& controller, const Key& key) {
        auto& keys = keysOf(controller);
        const int index = keys.lowerBound(key.time);
        if (keys.isIndex(index) && keys[index].time == key.time) return false;
        keys.insert(index, key);
        makeStale(controller);
        return true;
    }

    /// Puts `key` where its time belongs, in place of one that has that time.
    static void place(Controller& controller, const Key& key) {
        if (insert(controller, key)) return;
        auto& keys = keysOf(controller);
        keys[keys.indexOf(key.time)] = key;
        makeStale(controller);
    }

    static void erase(Controller& controller, int index) {
        keysOf(controller).erase(index);
        makeStale(controller);
    }

    static void makeStale(Controller& controller) { controller.makeStale(); }

  private:
    template <typename Edit>
    void run(const char* operation, Edit edit) {
        guarded(operation, [&] {
            Controller* const controller = controller_.get();
            if (controller && edit(*controller)) controller->notifyChange();
        });
    }

    LiveRef<Controller> controller_;
};

}  // namespace qvo::zmx::adaptor::max
