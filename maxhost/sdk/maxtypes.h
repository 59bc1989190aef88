#pragma once

#include <windows.h>

/// Time in ticks of 1/4800 second.
typedef int TimeValue;

constexpr int TIME_TICKSPERSEC = 4800;
constexpr TimeValue TIME_NegInfinity = -2147483647 - 1;
constexpr TimeValue TIME_PosInfinity = 0x7fffffff;

typedef unsigned short USHORT;
typedef ULONG SClass_ID;
typedef unsigned short MtlID;

/// Identity of a plug-in class inside its super class. Built-in classes have 0 as second part, plug-ins never
/// do.
class Class_ID {
  public:
    Class_ID() : a_(0xffffffffu), b_(0xffffffffu) {}
    Class_ID(ULONG partA, ULONG partB) : a_(partA), b_(partB) {}

    ULONG PartA() const { return a_; }
    ULONG PartB() const { return b_; }
    void SetPartA(ULONG partA) { a_ = partA; }
    void SetPartB(ULONG partB) { b_ = partB; }

    bool operator==(const Class_ID& other) const { return a_ == other.a_ && b_ == other.b_; }
    bool operator!=(const Class_ID& other) const { return !(*this == other); }
    bool operator<(const Class_ID& other) const { return a_ != other.a_ ? a_ < other.a_ : b_ < other.b_; }

  private:
    ULONG a_, b_;
};

/// Identity of an extension interface, argument of `InterfaceServer::GetInterface`.
class Interface_ID {
  public:
    Interface_ID() : a_(0), b_(0) {}
    Interface_ID(ULONG partA, ULONG partB) : a_(partA), b_(partB) {}

    ULONG PartA() const { return a_; }
    ULONG PartB() const { return b_; }

    bool operator==(const Interface_ID& other) const { return a_ == other.a_ && b_ == other.b_; }
    bool operator!=(const Interface_ID& other) const { return !(*this == other); }

  private:
    ULONG a_, b_;
};

enum IOResult { IO_OK = 0, IO_END = 1, IO_ERROR = 2, IO_INTERRUPT = 3 };

/// What the file behind a file notification is.
enum FileIOType { IOTYPE_UNKNOWN = -1, IOTYPE_MAX = 0, IOTYPE_MATLIB = 1, IOTYPE_RENDER_PRESETS = 2 };

enum CloneType { NODE_COPY = 0, NODE_INSTANCE = 1, NODE_REFERENCE = 2 };
