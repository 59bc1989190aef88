#include "apps/headless/PositionsCsv.h"

#include <cstdio>

#include "apps/headless/FileText.h"

namespace headless {

namespace {

std::string quotedIfNeeded(const std::string& name) {
    if (name.find_first_of(",\"\r\n") == std::string::npos) return name;
    std::string quoted = "\"";
    for (const char c : name)
        quoted += c == '"' ? std::string("\"\"") : std::string(1, c);
    return quoted + '"';
}

}  // namespace

void writePositionsCsv(const std::string& path, const Playback& playback) {
    std::vector<std::string> names;
    for (const std::string& name : playback.names())
        names.push_back(quotedIfNeeded(name));
    std::string table = "frame,node,x,y,z\n";
    for (std::size_t frame = 0; frame < playback.times().size(); ++frame) {
        for (std::size_t joint = 0; joint < names.size(); ++joint) {
            const CorePoint& p = playback.position(frame, joint);
            char numbers[96];
            std::snprintf(numbers, sizeof numbers, ",%.9g,%.9g,%.9g\n", p.x, p.y, p.z);
            table += std::to_string(frame) + ',' + names[joint] + numbers;
        }
    }
    writeText(path, table);
}

}  // namespace headless
