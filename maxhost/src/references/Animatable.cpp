#include <algorithm>
#include <cstring>

#include "maxhost/src/references/AnimatableAccess.h"

namespace {

using Chunks = std::vector<AppDataChunk*>;

Chunks::iterator findChunk(Chunks& chunks, const Class_ID& cid, SClass_ID sid, DWORD sbid) {
    return std::find_if(chunks.begin(), chunks.end(), [&](const AppDataChunk* chunk) {
        return chunk->classID == cid && chunk->superClassID == sid && chunk->subID == sbid;
    });
}

}  // namespace

Animatable::~Animatable() {
    ClearAllAppData();
}

void Animatable::AddAppDataChunk(const Class_ID& cid, SClass_ID sid, DWORD sbid, DWORD len, void* data) {
    RemoveAppDataChunk(cid, sid, sbid);
    appData_.push_back(new AppDataChunk(cid, sid, sbid, len, data));
}

AppDataChunk* Animatable::GetAppDataChunk(const Class_ID& cid, SClass_ID sid, DWORD sbid) {
    const auto found = findChunk(appData_, cid, sid, sbid);
    return found == appData_.end() ? nullptr : *found;
}

BOOL Animatable::RemoveAppDataChunk(const Class_ID& cid, SClass_ID sid, DWORD sbid) {
    const auto found = findChunk(appData_, cid, sid, sbid);
    if (found == appData_.end()) return FALSE;
    delete *found;
    appData_.erase(found);
    return TRUE;
}

void Animatable::ClearAllAppData() {
    for (const AppDataChunk* chunk : appData_)
        delete chunk;
    appData_.clear();
}

namespace maxhost {

void AnimatableAccess::copyAppData(const Animatable& from, Animatable& to) {
    for (const AppDataChunk* chunk : from.appData_) {
        void* const copy = MAX_malloc(chunk->length);
        if (copy == nullptr) throw std::bad_alloc();
        if (chunk->length > 0) std::memcpy(copy, chunk->data, chunk->length);
        to.AddAppDataChunk(chunk->classID, chunk->superClassID, chunk->subID, chunk->length, copy);
    }
}

}  // namespace maxhost
