#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <fstream>
#include <map>
#include <memory>
#include <regex>
#include <sstream>
#include <string>
#include <vector>

/// Compares the layout that the Microsoft x64 ABI gives to each boundary class with the slot tables.
namespace {

using Slots = std::vector<std::string>;
using Layouts = std::map<std::string, Slots>;

std::string outputOf(const std::string& command) {
    const std::unique_ptr<FILE, int (*)(FILE*)> pipe(popen(command.c_str(), "r"), pclose);
    std::string output;
    std::array<char, 4096> buffer;
    for (std::size_t count; pipe && (count = fread(buffer.data(), 1, buffer.size(), pipe.get())) > 0;)
        output.append(buffer.data(), count);
    return output;
}

/// "bool a::B::c(int) [pure]" gives "c", a destructor "~".
std::string operationName(const std::string& signature) {
    static const std::regex name(R"(([~\w]+|operator=)\(.*\))");
    std::smatch match;
    if (!std::regex_search(signature, match, name)) return signature;
    const std::string found = match[1];
    return found.front() == '~' ? "~" : found;
}

/// The compiler's own lists of complete tables, by class.
Layouts readLayouts(const std::string& printed) {
    static const std::regex header(R"(^VFTable for (.*)\((\d+) entr)");
    static const std::regex quoted("'([^']*)'");
    static const std::regex entry(R"(^ *\d+ \| (.*)$)");
    Layouts layouts;
    std::istringstream lines(printed);
    std::smatch match;
    std::string className;
    for (std::string line; std::getline(lines, line);) {
        if (std::regex_search(line, match, header)) {
            const std::string names = match[1];
            for (auto name = std::sregex_iterator(names.begin(), names.end(), quoted);
                 name != std::sregex_iterator(); ++name)
                className = (*name)[1];
            layouts[className].clear();  // instances of a template are printed under one name
        } else if (line.empty()) {
            className.clear();
        } else if (!className.empty() && std::regex_match(line, match, entry)) {
            layouts[className].push_back(operationName(match[1]));
        }
    }
    return layouts;
}

Layouts readTables(const std::string& path) {
    Layouts tables;
    std::ifstream file(path);
    std::string className;
    for (std::string line; std::getline(file, line);) {
        if (line.rfind("class ", 0) == 0) {
            className = line.substr(6);
        } else if (!line.empty() && line.front() != '#') {
            Slots& slots = tables[className];
            const std::size_t blank = line.find(' ');
            EXPECT_EQ(std::stoul(line.substr(0, blank)), slots.size()) << className;
            slots.push_back(line.substr(blank + 1));
        }
    }
    return tables;
}

TEST(Abi, EveryBoundaryClassHasTheContractsSlots) {
    const Layouts layouts = readLayouts(outputOf(ZK_ABI_COMMAND));
    const Layouts tables = readTables(ZK_ABI_TABLES);
    ASSERT_FALSE(tables.empty());
    for (const auto& [className, slots] : tables) {
        const auto found = layouts.find(className);
        ASSERT_NE(found, layouts.end()) << "no layout printed for " << className;
        EXPECT_EQ(found->second, slots) << className;
    }
}

}  // namespace
