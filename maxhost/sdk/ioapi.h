#pragma once

#include "coreexp.h"
#include "maxtypes.h"

enum ChunkType { NEW_CHUNK, CONTAINER_CHUNK, DATA_CHUNK };

/// Writes an object's chunks into a scene file. A chunk holds either data or chunks, never both. Numbers are
/// raw little-endian bytes. Every operation answers IO_OK, or IO_ERROR when the file can no longer be
/// written.
class ISave {
  public:
    virtual ~ISave() = default;
    virtual IOResult BeginChunk(USHORT id) = 0;
    virtual IOResult EndChunk() = 0;
    /// `nwrit`, when not null, gets the number of bytes written.
    virtual IOResult Write(const void* buf, ULONG nbytes, ULONG* nwrit) = 0;
    /// The bytes and the final zero, which counts in the chunk's length.
    virtual IOResult WriteCString(const char* str) = 0;
    /// Number by which the file knows a reference target, -1 when it is not saved.
    virtual int GetRefID(void* target) = 0;
    virtual DWORD SavingVersion() { return 0; }
};

class ILoad;

/// Runs once the whole file is read and all references are in place; deleted by nobody but itself.
class PostLoadCallback {
  public:
    virtual ~PostLoadCallback() = default;
    virtual void proc(ILoad* iload) = 0;
};

/// Reads the chunks that an object wrote. References are not in place while an object loads.
class ILoad {
  public:
    virtual ~ILoad() = default;
    /// IO_OK, IO_END when the present level has no more chunks, or IO_ERROR.
    virtual IOResult OpenChunk() = 0;
    virtual USHORT CurChunkID() = 0;
    virtual ChunkType CurChunkType() = 0;
    /// Bytes in the chunk opened last, its header not counted.
    virtual ULONG CurChunkLength() = 0;
    virtual int CurChunkDepth() = 0;
    /// Skips what was not read.
    virtual IOResult CloseChunk() = 0;
    /// Id of the next chunk of the present level, 0 when there is none.
    virtual USHORT PeekNextChunkID() = 0;
    /// `nread`, when not null, gets the number of bytes read. Past the end of the chunk: fewer bytes and
    /// IO_ERROR.
    virtual IOResult Read(void* buf, ULONG nbytes, ULONG* nread) = 0;
    /// The whole chunk as one string in the host's buffer, valid until the next such read or CloseChunk.
    virtual IOResult ReadCStringChunk(char** buf) = 0;
    virtual void RegisterPostLoadCallback(PostLoadCallback* cb) = 0;
    virtual void SetObsolete() = 0;
};
