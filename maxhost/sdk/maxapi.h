#pragma once

#include "inode.h"

class NameTab;

constexpr int TASK_MODE_CREATE = 1;
constexpr int TASK_MODE_MODIFY = 2;
constexpr int TASK_MODE_HIERARCHY = 3;
constexpr int TASK_MODE_MOTION = 4;
constexpr int TASK_MODE_DISPLAY = 5;
constexpr int TASK_MODE_UTILITY = 6;

constexpr int ROLLUP_CAT_SYSTEM = 2000;
constexpr int ROLLUP_CAT_STANDARD = 4000;
constexpr int ROLLUP_CAT_CUSTATTRIB = 6000;
constexpr DWORD APPENDROLL_CLOSED = 0x1;

/// Merge actions: where a prompt would come up, this host keeps both.
constexpr int MERGE_DUPS_PROMPT = 0;
constexpr int MERGE_DUP_MTL_PROMPT = MERGE_DUPS_PROMPT;
constexpr int MERGE_REPARENT_PROMPT = 0;

constexpr DWORD REDRAW_BEGIN = 1 << 0;
constexpr DWORD REDRAW_INTERACTIVE = 1 << 1;
constexpr DWORD REDRAW_END = 1 << 2;
constexpr DWORD REDRAW_NORMAL = 1 << 3;

/// Told after every change of the scene's time. Not owned by the host.
class TimeChangeCallback : public InterfaceServer {
  public:
    virtual void TimeChanged(TimeValue t) = 0;
};

/// A view of the scene.
class ViewExp : public InterfaceServer {
  public:
    virtual GraphicsWindow* getGW() = 0;
    virtual BOOL IsPerspView() = 0;
    /// World to view.
    virtual void GetAffineTM(Matrix3& tm) = 0;
    /// Size of things that keep their size on the screen.
    virtual float NonScalingObjectSize() = 0;
};

/// The host. One object, lent by GetCOREInterface.
class Interface : public InterfaceServer {
  public:
    virtual HWND GetMAXHWnd() = 0;
    /// Never null.
    virtual INode* GetRootNode() = 0;

    virtual TimeValue GetTime() = 0;
    /// Not clamped to the range. Callbacks run only when the time changes.
    virtual void SetTime(TimeValue t, BOOL redraw = TRUE) = 0;
    virtual Interval GetAnimRange() = 0;
    virtual void SetAnimRange(Interval range) = 0;
    virtual void RegisterTimeChangeCallback(TimeChangeCallback* tc) = 0;
    virtual void UnRegisterTimeChangeCallback(TimeChangeCallback* tc) = 0;

    virtual int GetSelNodeCount() = 0;
    /// In order of selection; null for an index out of range.
    virtual INode* GetSelNode(int i) = 0;
    /// With `clearSel` the selection is emptied first.
    virtual void SelectNode(INode* node, int clearSel = 1) = 0;
    virtual void DeSelectNode(INode* node) = 0;
    virtual void SelectNodeTab(INodeTab& nodes, BOOL sel, BOOL redraw = TRUE) = 0;
    virtual void ClearNodeSelection(BOOL redraw = TRUE) = 0;

    /// A new top-level node with a default transform controller, a fresh name and a fresh handle.
    virtual INode* CreateObjectNode(Object* obj) = 0;
    virtual INode* CreateObjectNode(Object* obj, const TCHAR* name) = 0;
    virtual void DeleteNode(INode* node, int redraw = TRUE, int keepChildTM = FALSE) = 0;
    /// Null when no such class is registered. The caller owns what nothing references.
    virtual void* CreateInstance(SClass_ID superID, Class_ID classID) = 0;
    virtual INode* GetINodeByHandle(ULONG handle) = 0;
    /// First match; null when there is none.
    virtual INode* GetINodeByName(const TCHAR* name) = 0;

    /// Nonzero when the file was merged. This host throws for a damaged file: plug-ins must be ready for it.
    virtual int MergeFromFile(const TCHAR* name, BOOL mergeAll = FALSE, BOOL selMerged = FALSE,
                              BOOL refresh = TRUE, int dupAction = MERGE_DUPS_PROMPT,
                              NameTab* mrgList = nullptr, int dupMtlAction = MERGE_DUP_MTL_PROMPT,
                              int reparentAction = MERGE_REPARENT_PROMPT) = 0;
    /// `resultSource[i]` and `resultTarget[i]` belong together; listed nodes come first, in order.
    virtual bool CloneNodes(INodeTab& nodes, Point3& offset, bool expandHierarchies, CloneType cloneType,
                            INodeTab* resultSource = nullptr, INodeTab* resultTarget = nullptr) = 0;
    virtual int LoadFromFile(const TCHAR* name, BOOL refresh = TRUE) = 0;
    virtual int SaveToFile(const TCHAR* name) = 0;
    virtual void FileReset(BOOL noPrompt = FALSE) = 0;
    virtual BOOL ImportFromFile(const TCHAR* name, BOOL suppressPrompts = FALSE,
                                Class_ID* importerID = nullptr) = 0;
    virtual BOOL ExportToFile(const TCHAR* name, BOOL suppressPrompts = FALSE, DWORD options = 0,
                              Class_ID* exporterID = nullptr) = 0;

    /// `param` arrives as lParam of WM_INITDIALOG, before the call returns.
    virtual HWND AddRollupPage(HINSTANCE hInst, TCHAR* dlgTemplate, DLGPROC dlgProc, TCHAR* title,
                               LPARAM param = 0, DWORD rollUpFlags = 0,
                               int category = ROLLUP_CAT_STANDARD) = 0;
    virtual void DeleteRollupPage(HWND hRollup) = 0;
    virtual int GetCommandPanelTaskMode() = 0;
    virtual void SetCommandPanelTaskMode(int mode) = 0;

    /// Empties the undo and the redo list.
    virtual void FlushUndoBuffer() = 0;
    virtual void EnableUndo(BOOL onOff) = 0;
    virtual void EnableAnimateButton(BOOL onOff) = 0;
    virtual BOOL IsAnimateEnabled() = 0;

    virtual void RedrawViews(TimeValue t, DWORD vpFlags = REDRAW_NORMAL,
                             ReferenceTarget* change = nullptr) = 0;
    virtual void ForceCompleteRedraw(BOOL bDisabledToo = TRUE) = 0;
    /// Counted.
    virtual int DisableSceneRedraw() = 0;
    virtual int EnableSceneRedraw() = 0;
    virtual BOOL IsSceneRedrawDisabled() = 0;
    virtual ViewExp* GetActiveViewport() = 0;
    virtual void ReleaseViewport(ViewExp* vpt) = 0;
};

/// The host as objects and creation see it. Simplified: nothing is added; one host object serves all three.
class IObjParam : public Interface {};
class IObjCreate : public IObjParam {};

CoreExport Interface* GetCOREInterface();
