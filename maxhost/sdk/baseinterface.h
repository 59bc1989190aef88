#pragma once

#include "maxheap.h"
#include "maxtypes.h"

/// Base of extension interfaces. Simplified: the host offers none, so it has no operations of its own.
class BaseInterface {
  public:
    virtual ~BaseInterface() = default;
    virtual Interface_ID GetID() { return Interface_ID(); }
};

/// Something that can be asked for extension interfaces.
class InterfaceServer : public MaxHeapOperators {
  public:
    virtual ~InterfaceServer() = default;
    virtual BaseInterface* GetInterface(Interface_ID) { return nullptr; }
};

/// Interface server that is also a plain value class.
class BaseInterfaceServer : public InterfaceServer {};
