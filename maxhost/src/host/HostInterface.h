#pragma once

#include <max.h>

#include <vector>

#include "maxhost/src/host/Host.h"

namespace maxhost {

/// The host as plug-ins see it: hands every call to the part that it is about.
class HostInterface final : public IObjCreate {
  public:
    explicit HostInterface(Host& host) : host_(host) {}

    HWND GetMAXHWnd() override { return host_.mainWindow().handle(); }
    INode* GetRootNode() override { return &host_.scene().root(); }

    TimeValue GetTime() override;
    void SetTime(TimeValue t, BOOL redraw = TRUE) override;
    Interval GetAnimRange() override;
    void SetAnimRange(Interval range) override;
    void RegisterTimeChangeCallback(TimeChangeCallback* tc) override;
    void UnRegisterTimeChangeCallback(TimeChangeCallback* tc) override;

    int GetSelNodeCount() override;
    INode* GetSelNode(int i) override;
    void SelectNode(INode* node, int clearSel = 1) override;
    void DeSelectNode(INode* node) override;
    void SelectNodeTab(INodeTab& nodes, BOOL sel, BOOL redraw = TRUE) override;
    void ClearNodeSelection(BOOL redraw = TRUE) override;

    INode* CreateObjectNode(Object* obj) override { return CreateObjectNode(obj, nullptr); }
    INode* CreateObjectNode(Object* obj, const TCHAR* name) override;
    void DeleteNode(INode* node, int redraw = TRUE, int keepChildTM = FALSE) override;
    void* CreateInstance(SClass_ID superID, Class_ID classID) override;
    INode* GetINodeByHandle(ULONG handle) override { return host_.scene().findByHandle(handle); }
    INode* GetINodeByName(const TCHAR* name) override;

    int MergeFromFile(const TCHAR* name, BOOL mergeAll = FALSE, BOOL selMerged = FALSE, BOOL refresh = TRUE,
                      int dupAction = MERGE_DUPS_PROMPT, NameTab* mrgList = nullptr,
                      int dupMtlAction = MERGE_DUP_MTL_PROMPT,
                      int reparentAction = MERGE_REPARENT_PROMPT) override;
    bool CloneNodes(INodeTab& nodes, Point3& offset, bool expandHierarchies, CloneType cloneType,
                    INodeTab* resultSource = nullptr, INodeTab* resultTarget = nullptr) override;
    int LoadFromFile(const TCHAR* name, BOOL refresh = TRUE) override;
    int SaveToFile(const TCHAR* name) override;
    void FileReset(BOOL noPrompt = FALSE) override;
    BOOL ImportFromFile(const TCHAR* name, BOOL suppressPrompts = FALSE,
                        Class_ID* importerID = nullptr) override;
    BOOL ExportToFile(const TCHAR* name, BOOL suppressPrompts = FALSE, DWORD options = 0,
                      Class_ID* exporterID = nullptr) override;

    HWND AddRollupPage(HINSTANCE hInst, TCHAR* dlgTemplate, DLGPROC dlgProc, TCHAR* title, LPARAM param = 0,
                       DWORD rollUpFlags = 0, int category = ROLLUP_CAT_STANDARD) override;
    void DeleteRollupPage(HWND hRollup) override { host_.panel().rollups().remove(hRollup); }
    int GetCommandPanelTaskMode() override { return host_.panel().taskMode(); }
    void SetCommandPanelTaskMode(int mode) override { host_.panel().setTaskMode(mode); }

    void FlushUndoBuffer() override;
    /// Not counted.
    void EnableUndo(BOOL onOff) override;
    void EnableAnimateButton(BOOL onOff) override { host_.animateButtonEnabled = onOff != FALSE; }
    BOOL IsAnimateEnabled() override { return host_.animateButtonEnabled ? TRUE : FALSE; }

    void RedrawViews(TimeValue t, DWORD vpFlags = REDRAW_NORMAL, ReferenceTarget* change = nullptr) override;
    void ForceCompleteRedraw(BOOL bDisabledToo = TRUE) override;
    int DisableSceneRedraw() override { return host_.redraw().disable(); }
    int EnableSceneRedraw() override { return host_.redraw().enable(); }
    BOOL IsSceneRedrawDisabled() override { return host_.redraw().isDisabled() ? TRUE : FALSE; }
    /// Null: this host has views only while it draws.
    ViewExp* GetActiveViewport() override { return nullptr; }
    void ReleaseViewport(ViewExp* /*vpt*/) override {}

  private:
    void redrawIf(BOOL wanted) {
        if (wanted != FALSE) host_.redraw().request();
    }

    Host& host_;
};

}  // namespace maxhost
