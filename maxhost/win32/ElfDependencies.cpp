#include "maxhost/win32/ElfDependencies.h"

#include <elf.h>

#include <cstdint>
#include <cstring>
#include <fstream>

namespace maxhost::win32 {

namespace {

/// Reads records of a library file by offset; nothing read from the file is used before it was checked.
class ElfReader {
  public:
    explicit ElfReader(const std::string& file) : stream(file, std::ios::binary) {}

    template <class Record>
    bool read(std::uint64_t offset, Record& record) {
        if (offset > kMaxOffset) return false;
        stream.clear();
        stream.seekg(static_cast<std::streamoff>(offset));
        return static_cast<bool>(stream.read(reinterpret_cast<char*>(&record), sizeof record));
    }

    /// The zero-terminated text at `offset`; empty when the file ends first.
    std::string text(std::uint64_t offset) {
        std::string result;
        char letter = 0;
        if (!read(offset, letter)) return result;
        while (letter != 0 && result.size() < kMaxName) {
            result += letter;
            if (!stream.get(letter)) return std::string();
        }
        return result;
    }

  private:
    static constexpr std::uint64_t kMaxOffset = std::uint64_t{1} << 40;
    static constexpr std::size_t kMaxName = 4096;

    std::ifstream stream;
};

std::vector<Elf64_Phdr> readSegments(ElfReader& reader) {
    std::vector<Elf64_Phdr> segments;
    Elf64_Ehdr header;
    if (!reader.read(0, header)) return segments;
    if (std::memcmp(header.e_ident, ELFMAG, SELFMAG) != 0 || header.e_ident[EI_CLASS] != ELFCLASS64) {
        return segments;
    }
    Elf64_Phdr segment;
    for (unsigned i = 0; i < header.e_phnum; ++i) {
        if (!reader.read(header.e_phoff + i * sizeof segment, segment)) break;
        segments.push_back(segment);
    }
    return segments;
}

/// File offset of a virtual address, or 0 when no segment holds it (offset 0 is the file header).
std::uint64_t fileOffset(const std::vector<Elf64_Phdr>& segments, std::uint64_t address) {
    for (const Elf64_Phdr& segment : segments) {
        if (segment.p_type != PT_LOAD || address < segment.p_vaddr) continue;
        if (address - segment.p_vaddr < segment.p_filesz)
            return segment.p_offset + (address - segment.p_vaddr);
    }
    return 0;
}

std::vector<Elf64_Dyn> readDynamic(ElfReader& reader, const std::vector<Elf64_Phdr>& segments) {
    std::vector<Elf64_Dyn> entries;
    for (const Elf64_Phdr& segment : segments) {
        if (segment.p_type != PT_DYNAMIC) continue;
        Elf64_Dyn entry;
        for (std::uint64_t at = 0; at < segment.p_filesz; at += sizeof entry) {
            if (!reader.read(segment.p_offset + at, entry) || entry.d_tag == DT_NULL) break;
            entries.push_back(entry);
        }
    }
    return entries;
}

}  // namespace

std::vector<std::string> neededLibraries(const std::string& file) {
    ElfReader reader(file);
    const std::vector<Elf64_Phdr> segments = readSegments(reader);
    const std::vector<Elf64_Dyn> entries = readDynamic(reader, segments);
    std::uint64_t strings = 0;
    for (const Elf64_Dyn& entry : entries) {
        if (entry.d_tag == DT_STRTAB) strings = fileOffset(segments, entry.d_un.d_ptr);
    }
    std::vector<std::string> names;
    if (strings == 0) return names;
    for (const Elf64_Dyn& entry : entries) {
        if (entry.d_tag == DT_NEEDED) names.push_back(reader.text(strings + entry.d_un.d_val));
    }
    return names;
}

}  // namespace maxhost::win32
