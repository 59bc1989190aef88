#include "maxhost/src/host/HostInterface.h"

#include <stdexcept>

#include "maxhost/src/host/NodeCommands.h"
#include "maxhost/src/host/SceneCommands.h"
#include "maxhost/src/scene/Timing.h"
#include "maxhost/src/undo/UndoRecorder.h"

namespace maxhost {

namespace {

std::vector<Node*> nodesOf(const INodeTab& tab) {
    std::vector<Node*> nodes;
    for (int i = 0; i < tab.Count(); ++i)
        nodes.push_back(Scene::hostNode(tab[i]));
    return nodes;
}

}  // namespace

TimeValue HostInterface::GetTime() {
    return Timing::instance().time();
}

void HostInterface::SetTime(TimeValue t, BOOL redraw) {
    Timing::instance().setTime(t);
    redrawIf(redraw);
}

Interval HostInterface::GetAnimRange() {
    return Timing::instance().range();
}

void HostInterface::SetAnimRange(Interval range) {
    Timing::instance().setRange(range);
}

void HostInterface::RegisterTimeChangeCallback(TimeChangeCallback* tc) {
    Timing::instance().addCallback(tc);
}

void HostInterface::UnRegisterTimeChangeCallback(TimeChangeCallback* tc) {
    Timing::instance().removeCallback(tc);
}

int HostInterface::GetSelNodeCount() {
    return static_cast<int>(host_.scene().selection().nodes().size());
}

INode* HostInterface::GetSelNode(int i) {
    return i < 0 || i >= GetSelNodeCount() ? nullptr
                                           : host_.scene().selection().nodes()[static_cast<size_t>(i)];
}

void HostInterface::SelectNode(INode* node, int clearSel) {
    Node* const selected = Scene::hostNode(node);
    if (selected == nullptr || selected->isRoot()) return;
    if (clearSel != 0)
        host_.scene().selection().set({selected});
    else
        host_.scene().selection().add({selected});
    redrawIf(TRUE);
}

void HostInterface::DeSelectNode(INode* node) {
    host_.scene().selection().remove({Scene::hostNode(node)});
    redrawIf(TRUE);
}

void HostInterface::SelectNodeTab(INodeTab& nodes, BOOL sel, BOOL redraw) {
    if (sel != FALSE)
        host_.scene().selection().add(nodesOf(nodes));
    else
        host_.scene().selection().remove(nodesOf(nodes));
    redrawIf(redraw);
}

void HostInterface::ClearNodeSelection(BOOL redraw) {
    host_.scene().selection().clear();
    redrawIf(redraw);
}

INode* HostInterface::CreateObjectNode(Object* obj, const TCHAR* name) {
    return &NodeCommands(host_.scene()).create(obj, name);
}

void HostInterface::DeleteNode(INode* node, int redraw, int keepChildTM) {
    Node* const doomed = Scene::hostNode(node);
    if (doomed == nullptr) return;
    doomed->Delete(GetTime(), keepChildTM);
    redrawIf(redraw);
}

void* HostInterface::CreateInstance(SClass_ID superID, Class_ID classID) {
    return host_.classes().createInstance(superID, classID);
}

INode* HostInterface::GetINodeByName(const TCHAR* name) {
    return name == nullptr ? nullptr : host_.scene().findByName(name);
}

bool HostInterface::CloneNodes(INodeTab& nodes, Point3& offset, bool expandHierarchies, CloneType cloneType,
                               INodeTab* resultSource, INodeTab* resultTarget) {
    const auto pairs =
        NodeCommands(host_.scene()).clone(nodesOf(nodes), offset, expandHierarchies, cloneType);
    for (const NodeCommands::Pair& pair : pairs) {
        INode* source = pair.source;
        INode* target = pair.target;
        if (resultSource != nullptr) resultSource->Append(1, &source);
        if (resultTarget != nullptr) resultTarget->Append(1, &target);
    }
    redrawIf(TRUE);
    return !pairs.empty();
}

int HostInterface::MergeFromFile(const TCHAR* name, BOOL /*mergeAll*/, BOOL selMerged, BOOL refresh,
                                 int /*dupAction*/, NameTab* /*mrgList*/, int /*dupMtlAction*/,
                                 int /*reparentAction*/) {
    SceneCommands commands(host_);
    const bool merged = commands.merge(name, selMerged != FALSE);
    redrawIf(refresh);
    if (commands.fileWasDamaged()) throw std::runtime_error("the file to merge is damaged");
    return merged ? 1 : 0;
}

int HostInterface::LoadFromFile(const TCHAR* name, BOOL refresh) {
    const bool opened = SceneCommands(host_).open(name);
    redrawIf(refresh);
    return opened ? 1 : 0;
}

int HostInterface::SaveToFile(const TCHAR* name) {
    return SceneCommands(host_).save(name) ? 1 : 0;
}

void HostInterface::FileReset(BOOL /*noPrompt*/) {
    SceneCommands(host_).reset();
    redrawIf(TRUE);
}

BOOL HostInterface::ImportFromFile(const TCHAR* name, BOOL /*suppressPrompts*/, Class_ID* /*importerID*/) {
    const bool imported = SceneCommands(host_).importFile(name);
    redrawIf(TRUE);
    return imported ? TRUE : FALSE;
}

BOOL HostInterface::ExportToFile(const TCHAR* name, BOOL /*suppressPrompts*/, DWORD /*options*/,
                                 Class_ID* /*exporterID*/) {
    return SceneCommands(host_).exportFile(name) ? TRUE : FALSE;
}

HWND HostInterface::AddRollupPage(HINSTANCE hInst, TCHAR* dlgTemplate, DLGPROC dlgProc, TCHAR* title,
                                  LPARAM param, DWORD /*rollUpFlags*/, int category) {
    return host_.panel().rollups().add(hInst, dlgTemplate, dlgProc, title, param, category);
}

void HostInterface::FlushUndoBuffer() {
    UndoRecorder::instance().flush();
}

void HostInterface::EnableUndo(BOOL onOff) {
    if (host_.undoEnabled == (onOff != FALSE)) return;
    host_.undoEnabled = onOff != FALSE;
    if (host_.undoEnabled)
        UndoRecorder::instance().enable();
    else
        UndoRecorder::instance().disable();
}

void HostInterface::RedrawViews(TimeValue /*t*/, DWORD /*vpFlags*/, ReferenceTarget* /*change*/) {
    redrawIf(TRUE);
}

void HostInterface::ForceCompleteRedraw(BOOL /*bDisabledToo*/) {
    redrawIf(TRUE);
}

}  // namespace maxhost
