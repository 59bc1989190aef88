#include "apps/headless/Options.h"

namespace headless {

const char* Options::usage() {
    return "usage: headless --plugins DIR --report FILE [--registry FILE] [--log FILE]... [--out DIR]";
}

Options Options::parse(int count, char** arguments) {
    Options options;
    for (int i = 1; i < count; i += 2) {
        const std::string name = arguments[i];
        if (i + 1 == count) throw UsageError(name + " is unknown or needs a value");
        const std::string value = arguments[i + 1];
        if (value.empty()) throw UsageError(name + " has an empty value");
        if (name == "--plugins") {
            options.plugins = value;
        } else if (name == "--registry") {
            options.registry = value;
        } else if (name == "--report") {
            options.report = value;
        } else if (name == "--log") {
            options.logs.push_back(value);
        } else if (name == "--out") {
            options.out = value;
        } else {
            throw UsageError(name + " is unknown");
        }
    }
    if (options.plugins.empty()) throw UsageError("--plugins is missing");
    if (options.report.empty()) throw UsageError("--report is missing");
    return options;
}

}  // namespace headless
