#pragma once

#include "util/xml/Element.h"

namespace qvo::zmx::core {

/// The live core, as "attach" returns it and "detach" ends it. The adaptor calls the named operations; the
/// reserved ones keep the later slots in place and are never called from this side. No operation throws.
///
/// The slot order is a contract and never changes.
class CoreObject {
  public:
    virtual void reserved0() = 0;
    virtual void reserved1() = 0;
    virtual void reserved2() = 0;
    virtual void reserved3() = 0;
    virtual void reserved4() = 0;
    virtual void reserved5() = 0;
    virtual void reserved6() = 0;
    virtual void reserved7() = 0;
    virtual void reserved8() = 0;
    virtual void reserved9() = 0;
    virtual void reserved10() = 0;
    virtual void reserved11() = 0;
    virtual void reserved12() = 0;
    virtual void reserved13() = 0;
    virtual void reserved14() = 0;
    virtual void reserved15() = 0;
    virtual void reserved16() = 0;

    /// Fills `state` and names it (setValue). It is written into the scene file when it has at least one
    /// child; without a name as "ZMK", which loadState could not tell from the root below.
    virtual void saveState(util::xml::Element& state) = 0;  // slot 17

    /// Receives one stored state, or the root "ZMK" of gathered or converted states.
    virtual void loadState(util::xml::Element& state) = 0;  // slot 18

    /// The scene is about to be reset or replaced, or a file to be imported. The scene may stay after all,
    /// when the host refuses the file: afterwards AdaptorInterface::getOwnedNodes tells what is left.
    virtual void sceneClosing() = 0;  // slot 19

    /// The user pressed the start button. `mainWindow` is the host's main window handle.
    virtual void openStudio(void* mainWindow) = 0;  // slot 20

    virtual void reserved21() = 0;
    virtual void reserved22() = 0;
    virtual void reserved23() = 0;
    virtual void reserved24() = 0;

    /// The host's current time has changed.
    virtual void timeChanged(double seconds) = 0;  // slot 25

    /// With the host's notification information: shall handleEvent be called for this event?
    /// With null: shall keys be hidden from the host?
    virtual bool queryEvent(const void* notification) = 0;  // slot 26

    virtual void reserved27() = 0;
    virtual void reserved28() = 0;

    /// The event that queryEvent answered true for.
    virtual void handleEvent() = 0;  // slot 29

    virtual void reserved30() = 0;
    virtual void reserved31() = 0;
    virtual void reserved32() = 0;
    virtual void reserved33() = 0;
    virtual void reserved34() = 0;
    virtual void reserved35() = 0;
    virtual void reserved36() = 0;
    virtual void reserved37() = 0;
    virtual void reserved38() = 0;
    virtual void reserved39() = 0;
    virtual void reserved40() = 0;

    /// Called at once after a successful attach.
    virtual void start() = 0;  // slot 41

    virtual void reserved42() = 0;
    virtual void reserved43() = 0;
    virtual void reserved44() = 0;
    virtual void reserved45() = 0;

    /// Tells an option's value after attach.
    virtual void setOption(unsigned int id, unsigned int value) = 0;  // slot 46

    virtual void reserved47() = 0;

    /// The user changed an option; `value` points at the new value: 32 bits, 0 or 1.
    virtual void optionChanged(unsigned int id, const void* value) = 0;  // slot 48

  protected:
    CoreObject() = default;
    CoreObject(const CoreObject&) = default;
    CoreObject& operator=(const CoreObject&) = default;
    ~CoreObject() = default;
};

}  // namespace qvo::zmx::core
