#pragma once

#include "maxapi.h"

class BitmapManager;
class DllDir;

/// Results of GUP::Start: keep the plug-in, discard it, end the host.
constexpr DWORD GUPRESULT_KEEP = 0;
constexpr DWORD GUPRESULT_NOKEEP = 1;
constexpr DWORD GUPRESULT_ABORT = 3;

/// Results of ITreeEnumProc::callback.
constexpr int TREE_CONTINUE = 0;
constexpr int TREE_IGNORECHILDREN = 1;
constexpr int TREE_ABORT = 2;

/// Called for every node of the scene.
class ITreeEnumProc {
  public:
    virtual ~ITreeEnumProc() = default;
    virtual int callback(INode* node) = 0;
};

/// Global utility plug-in: started with the host, stopped at its end, saved and loaded with every scene.
class CoreExport GUP : public InterfaceServer {
  public:
    BaseInterface* GetInterface(Interface_ID) override { return nullptr; }

    virtual HINSTANCE MaxInst();
    virtual HWND MaxWnd();
    /// Null: this host offers neither a library directory nor a bitmap manager.
    virtual DllDir* MaxDllDir();
    virtual Interface* Max();
    virtual BitmapManager* Bmi();
    /// Parents before children, the root left out. Zero when aborted.
    virtual int EnumTree(ITreeEnumProc* proc);
    /// Runs the script at once. False when it cannot be read or a statement fails; the rest is then not run.
    virtual bool ExecuteStringScript(TCHAR* string);
    virtual bool ExecuteFileScript(TCHAR* file);

    virtual DWORD Start() = 0;
    virtual void Stop() = 0;
    virtual DWORD_PTR Control(DWORD /*parameter*/) { return 0; }
    virtual IOResult Save(ISave* /*isave*/) { return IO_OK; }
    virtual IOResult Load(ILoad* /*iload*/) { return IO_OK; }
    virtual void DeleteThis() = 0;
};

/// The running global utility of that class id, null when there is none.
CoreExport GUP* OpenGupPlugIn(Class_ID classID);
