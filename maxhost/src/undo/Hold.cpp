#include <hold.h>

#include "maxhost/src/undo/UndoRecorder.h"

using maxhost::UndoRecorder;
using Activity = UndoRecorder::Activity;

Hold theHold;

namespace {

UndoRecorder& recorder() {
    return UndoRecorder::instance();
}

std::string entryName(const TCHAR* name) {
    return name == nullptr ? std::string() : std::string(name);
}

}  // namespace

void Hold::Begin() {
    recorder().begin();
}
int Hold::Holding() {
    return recorder().holding() ? 1 : 0;
}
void Hold::Put(RestoreObj* rob) {
    recorder().put(rob);
}
void Hold::Accept(int) {
    recorder().accept(std::string());
}
void Hold::Accept(TCHAR* name) {
    recorder().accept(entryName(name));
}
void Hold::Cancel() {
    recorder().cancel();
}
void Hold::Restore() {
    recorder().restoreOpenGroup();
}
void Hold::Release() {
    recorder().releaseOpenGroup();
}
void Hold::End() {
    recorder().end();
}
void Hold::SuperBegin() {
    recorder().superBegin();
}
void Hold::SuperAccept(int) {
    recorder().superAccept(std::string());
}
void Hold::SuperAccept(TCHAR* name) {
    recorder().superAccept(entryName(name));
}
void Hold::SuperCancel() {
    recorder().superCancel();
}
void Hold::Suspend() {
    recorder().suspend();
}
int Hold::IsSuspended() {
    return recorder().isSuspended() ? 1 : 0;
}
void Hold::Resume() {
    recorder().resume();
}

int Hold::Restoring(int& isUndo) {
    const Activity activity = recorder().activity();
    isUndo = activity == Activity::undoing ? 1 : 0;
    return activity == Activity::undoing || activity == Activity::cancelling ? 1 : 0;
}

int Hold::Redoing() {
    return recorder().activity() == Activity::redoing ? 1 : 0;
}
int Hold::RestoreOrRedoing() {
    return recorder().activity() != Activity::none ? 1 : 0;
}
void Hold::DisableUndo() {
    recorder().disable();
}
void Hold::EnableUndo() {
    recorder().enable();
}
BOOL Hold::IsUndoDisabled() {
    return recorder().isDisabled() ? TRUE : FALSE;
}
int Hold::GetBeginDepth() {
    return recorder().depth();
}
