#pragma once

#include "baseinterface.h"
#include "coreexp.h"
#include "interval.h"
#include "strclass.h"
#include "tab.h"

class IObjParam;

/// Flags of the time operations below; the TIME_ bits go into the same word.
constexpr DWORD TRACK_DOSEL = 1 << 0;
constexpr DWORD TRACK_DOALL = 1 << 1;
constexpr DWORD TRACK_SLIDEUNSEL = 1 << 2;
constexpr DWORD TRACK_RIGHTTOLEFT = 1 << 3;
constexpr DWORD TRACK_DOSUBANIMS = 1 << 4;
constexpr DWORD TRACK_DOCHILDNODES = 1 << 5;
constexpr DWORD TRACK_MAPRANGE = 1 << 6;
constexpr DWORD TRACK_DOSOFTSELECT = 1 << 7;
constexpr DWORD TRACK_INSERTKEYS = 1 << 8;
constexpr DWORD TRACK_REPLACEKEYS = 1 << 9;
constexpr DWORD TIME_INCLEFT = 1 << 10;
constexpr DWORD TIME_INCRIGHT = 1 << 11;
constexpr DWORD TIME_NOSLIDE = 1 << 12;

constexpr DWORD SELKEYS_SELECT = 1;
constexpr DWORD SELKEYS_DESELECT = 2;
constexpr DWORD SELKEYS_CLEARKEYS = 4;
constexpr DWORD SELKEYS_CLEARCURVE = 8;
constexpr DWORD SELKEYS_FCURVE = 16;

constexpr DWORD NEXTKEY_LEFT = 1;
constexpr DWORD NEXTKEY_RIGHT = 2;
constexpr DWORD NEXTKEY_POS = 4;
constexpr DWORD NEXTKEY_ROT = 8;
constexpr DWORD NEXTKEY_SCALE = 16;

constexpr DWORD TIMERANGE_SELONLY = 1;
constexpr DWORD TIMERANGE_ALL = 2;
constexpr DWORD TIMERANGE_CHILDNODES = 4;
constexpr DWORD TIMERANGE_CHILDANIMS = 8;

constexpr DWORD KEYAT_POSITION = 1 << 0;
constexpr DWORD KEYAT_ROTATION = 1 << 1;
constexpr DWORD KEYAT_SCALE = 1 << 2;

/// Flags of BeginEditParams and EndEditParams.
constexpr ULONG BEGIN_EDIT_CREATE = 1;
constexpr ULONG BEGIN_EDIT_MOTION = 2;
constexpr ULONG BEGIN_EDIT_HIERARCHY = 4;
constexpr ULONG BEGIN_EDIT_LINKINFO = 8;
constexpr ULONG END_EDIT_REMOVEUI = 1;

/// Result of NumKeys for things that cannot have keys.
constexpr int NOT_KEYFRAMEABLE = -1;

/// Animatable flags: marked by a record of the open hold; deleted, kept alive by the undo list only; not to
/// be deleted when the last dependent goes.
constexpr DWORD A_HELD = 1u << 23;
constexpr DWORD A_IS_DELETED = 1u << 25;
constexpr DWORD A_LOCK_TARGET = 1u << 27;

/// A key hit in the track view; `hit` is a key index.
class TrackHitRecord {
  public:
    DWORD hit;
    DWORD flags;
    explicit TrackHitRecord(DWORD h = 0, DWORD f = 0) : hit(h), flags(f) {}
};
typedef Tab<TrackHitRecord> TrackHitTab;

/// Anything that the track view can show. The destructor is protected: instances die by DeleteThis, DeleteMe
/// or MaybeAutoDelete, never by `delete`.
class CoreExport Animatable : public InterfaceServer {
  public:
    Animatable(const Animatable&) = delete;
    Animatable& operator=(const Animatable&) = delete;

    /// Deletes the instance with the operators of the library that made it.
    virtual void DeleteThis() = 0;
    virtual void GetClassName(TSTR& s) { s = _T("Animatable"); }
    virtual Class_ID ClassID() { return Class_ID(0, 0); }
    virtual SClass_ID SuperClassID() { return 0; }
    virtual int IsRefMaker() { return 0; }

    virtual void BeginEditParams(IObjParam* /*ip*/, ULONG /*flags*/, Animatable* /*prev*/ = nullptr) {}
    virtual void EndEditParams(IObjParam* /*ip*/, ULONG /*flags*/, Animatable* /*next*/ = nullptr) {}

    virtual int NumSubs() { return 0; }
    /// May be null for an index in range.
    virtual Animatable* SubAnim(int /*i*/) { return nullptr; }
    virtual TSTR SubAnimName(int /*i*/) { return TSTR(); }
    virtual BOOL AssignController(Animatable* /*control*/, int /*subAnim*/) { return FALSE; }
    virtual int SubNumToRefNum(int /*subNum*/) { return -1; }

    virtual int NumKeys() { return NOT_KEYFRAMEABLE; }
    virtual TimeValue GetKeyTime(int /*index*/) { return 0; }
    virtual int GetKeyIndex(TimeValue /*t*/) { return 0; }
    virtual BOOL GetNextKeyTime(TimeValue /*t*/, DWORD /*flags*/, TimeValue& /*nt*/) { return FALSE; }
    virtual void DeleteKeyAtTime(TimeValue /*t*/) {}
    virtual BOOL IsKeyAtTime(TimeValue /*t*/, DWORD /*flags*/) { return FALSE; }
    virtual int GetKeyTimes(Tab<TimeValue>& /*times*/, Interval /*range*/, DWORD /*flags*/) { return 0; }
    virtual Interval GetTimeRange(DWORD /*flags*/) { return Interval(); }
    virtual void DeleteTime(Interval /*iv*/, DWORD /*flags*/) {}
    virtual void DeleteKeys(DWORD /*flags*/) {}
    virtual void DeleteKeyByIndex(int /*index*/) {}
    virtual void SelectKeys(TrackHitTab& /*sel*/, DWORD /*flags*/) {}
    virtual void SelectKeyByIndex(int /*i*/, BOOL /*sel*/) {}
    virtual void MouseCycleStarted(TimeValue /*t*/) {}
    virtual void MouseCycleCompleted(TimeValue /*t*/) {}

    using InterfaceServer::GetInterface;
    virtual void* GetInterface(ULONG /*id*/) { return nullptr; }

    void SetAFlag(DWORD mask) { aflag_ |= mask; }
    void ClearAFlag(DWORD mask) { aflag_ &= ~mask; }
    BOOL TestAFlag(DWORD mask) { return (aflag_ & mask) != 0 ? TRUE : FALSE; }

  protected:
    Animatable() = default;
    ~Animatable() override = default;

  private:
    DWORD aflag_ = 0;
};
