#include "maxhost/win32/RegistryFile.h"

#include <stdexcept>

#include "maxhost/win32/RegistryStore.h"

namespace maxhost::win32 {

namespace {

class Reader {
  public:
    Reader(std::istream& source, const std::string& sourceName, RegistryStore& target)
        : stream(source), name(sourceName), store(target) {}

    void run() {
        readHeader();
        while (nextLine()) {
            if (line.empty() || line[0] == ';') continue;
            if (line[0] == '[') {
                openSection();
            } else {
                readValue();
            }
        }
    }

  private:
    [[noreturn]] void fail(const std::string& cause) const {
        throw std::runtime_error(name + ':' + std::to_string(lineNumber) + ": " + cause);
    }

    bool nextLine() {
        if (!std::getline(stream, line)) return false;
        ++lineNumber;
        const std::size_t end = line.find_last_not_of(" \t\r");
        line.resize(end == std::string::npos ? 0 : end + 1);
        return true;
    }

    void readHeader() {
        if (!nextLine()) {
            lineNumber = 1;
            fail("the file is empty");
        }
        if (line.compare(0, 2, "\xFF\xFE") == 0)
            fail("16-bit text; export the registry in the REGEDIT4 form");
        if (line != "REGEDIT4" && line != "Windows Registry Editor Version 5.00")
            fail("not a registry export");
    }

    void openSection() {
        if (line.back() != ']') fail("the section's closing bracket is missing");
        section = line.substr(1, line.size() - 2);
        const std::string root = section.substr(0, section.find('\\'));
        if (root != "HKEY_LOCAL_MACHINE" && root != "HKEY_CURRENT_USER") fail("unknown root key " + root);
        store.addKey(section);
    }

    void readValue() {
        if (section.empty()) fail("a value stands before the first section");
        std::size_t at = 0;
        std::string valueName;
        if (line[0] == '@') {
            at = 1;
        } else {
            valueName = quotedText(at);
        }
        if (at >= line.size() || line[at] != '=') fail("\"=\" is missing after the value's name");
        store.set(section, valueName, value(at + 1));
    }

    RegistryValue value(std::size_t at) const {
        if (line.compare(at, 6, "dword:") == 0) return dword(line.substr(at + 6));
        if (at >= line.size() || line[at] != '"') fail("only texts and dwords can be read");
        const std::string text = quotedText(at);
        if (at != line.size()) fail("text after the closing quote");
        return RegistryValue{REG_SZ, text + '\0'};
    }

    RegistryValue dword(const std::string& digits) const {
        const bool valid = !digits.empty() && digits.size() <= 8 &&
                           digits.find_first_not_of("0123456789abcdefABCDEF") == std::string::npos;
        if (!valid) fail("a dword has one to eight hexadecimal digits");
        const unsigned long number = std::stoul(digits, nullptr, 16);
        RegistryValue result{REG_DWORD, std::string()};
        for (int shift = 0; shift < 32; shift += 8)
            result.bytes += static_cast<char>((number >> shift) & 0xff);
        return result;
    }

    /// Reads the quoted text at `at` and moves behind its closing quote. A backslash keeps the character
    /// after it.
    std::string quotedText(std::size_t& at) const {
        if (line[at] != '"') fail("a quoted name is expected");
        std::string text;
        for (++at; at < line.size(); ++at) {
            if (line[at] == '"') {
                ++at;
                return text;
            }
            if (line[at] == '\\' && ++at == line.size()) break;
            text += line[at];
        }
        fail("the closing quote is missing");
    }

    std::istream& stream;
    const std::string& name;
    RegistryStore& store;
    std::string line;
    std::size_t lineNumber = 0;
    std::string section;
};

}  // namespace

void readRegistryFile(std::istream& stream, const std::string& name, RegistryStore& store) {
    Reader(stream, name, store).run();
}

}  // namespace maxhost::win32
