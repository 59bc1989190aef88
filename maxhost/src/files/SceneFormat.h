#pragma once

#include <max.h>

#include <cstdint>

/// Numbers of the scene file. They are stored in users' files: changing one makes those unreadable.
///
/// A file is the magic bytes, the format version, and chunks. A chunk is its id (16 bits), the number of its
/// bytes (64 bits, header not counted, the top bit set for a chunk that holds chunks), and those bytes.
/// Numbers are little-endian. References are numbers of targets: nodes count from 0 in the order of the file,
/// objects (whatever is no node) go on from there.
namespace maxhost::format {

constexpr char kMagic[8] = {'m', 'h', 's', 'c', 'e', 'n', 'e', '\n'};
constexpr std::uint32_t kVersion = 1;
constexpr size_t kFileHeaderSize = 12;

constexpr size_t kChunkHeaderSize = 10;
constexpr std::uint64_t kContainerBit = std::uint64_t(1) << 63;

constexpr std::uint32_t kNone = 0xffffffff;  ///< no reference; as a parent: the root

// Sections, in this order, each once.
constexpr USHORT kSettings = 0x0010;   ///< a SettingsRecord
constexpr USHORT kUtilities = 0x0020;  ///< kUtility ...
constexpr USHORT kNodes = 0x0030;      ///< kNode ..., parents before children
constexpr USHORT kObjects = 0x0040;    ///< kObject ...
constexpr USHORT kChecksums = 0x0050;  ///< CRC-32 of each section before, header included

constexpr USHORT kUtility = 0x0021;       ///< kUtilityClass, kUtilityData
constexpr USHORT kUtilityClass = 0x0022;  ///< class id
constexpr USHORT kUtilityData = 0x0023;   ///< the utility's chunks

constexpr USHORT kNode = 0x0031;            ///< kNodeRecord, kNodeName, then what there is of the others
constexpr USHORT kNodeRecord = 0x0032;      ///< a NodeRecord
constexpr USHORT kNodeName = 0x0033;        ///< bytes, no final zero
constexpr USHORT kNodeProperties = 0x0034;  ///< user property text, no final zero

constexpr USHORT kObject = 0x0041;       ///< kObjectClass, then what there is of the others
constexpr USHORT kObjectClass = 0x0042;  ///< super class id, class id
constexpr USHORT kObjectData = 0x0043;   ///< the object's chunks

// In nodes and objects.
constexpr USHORT kReferences = 0x0051;  ///< numbers of the targets, by reference index

struct SettingsRecord {
    std::int32_t time, rangeStart, rangeEnd;
    std::int32_t frameRate, ticksPerFrame;
    std::int32_t unitType;
    float unitScale;
};
static_assert(sizeof(SettingsRecord) == 28, "stored raw in scene files");

struct NodeRecord {
    std::uint32_t handle;
    std::uint32_t parent;  ///< number of a node before this one, or kNone
    std::uint32_t flags;
    std::uint32_t wireColor;
};
static_assert(sizeof(NodeRecord) == 16, "stored raw in scene files");

struct ClassRecord {
    std::uint32_t superClass, classA, classB;
};
static_assert(sizeof(ClassRecord) == 12, "stored raw in scene files");

}  // namespace maxhost::format
