#include <control.h>

namespace {
/// Stored in scene files; never change it.
constexpr USHORT kFlagsChunk = 0x3003;
}  // namespace

IOResult Control::Save(ISave* isave) {
    const DWORD controlFlags = 0;
    if (isave->BeginChunk(kFlagsChunk) != IO_OK) return IO_ERROR;
    if (isave->Write(&controlFlags, sizeof(controlFlags), nullptr) != IO_OK) return IO_ERROR;
    return isave->EndChunk();
}

IOResult Control::Load(ILoad* iload) {
    if (iload->PeekNextChunkID() != kFlagsChunk) return IO_OK;
    const IOResult opened = iload->OpenChunk();
    return opened == IO_OK ? iload->CloseChunk() : opened;
}
