#include "tests/scenario/HeadlessRun.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <fstream>
#include <iterator>

namespace scenario {

namespace fs = std::filesystem;

namespace {

std::string quoted(const std::string& argument) {
    std::string result = "'";
    for (const char c : argument)
        result += c == '\'' ? std::string("'\\''") : std::string(1, c);
    return result + "'";
}

}  // namespace

HeadlessRun::HeadlessRun() {
    static int count = 0;
    const std::string name =
        "zk it's \"a\" <b> & c " + std::to_string(getpid()) + "-" + std::to_string(++count);
    folder_ = fs::path(::testing::TempDir()) / name;
    fs::create_directories(folder_);
}

HeadlessRun::~HeadlessRun() {
    std::error_code ignored;
    fs::remove_all(folder_, ignored);
}

int HeadlessRun::run(const std::vector<std::string>& command) const {
    std::string line;
    for (const std::string& argument : command)
        line += quoted(argument) + ' ';
    line += ">" + quoted((folder_ / "stdout").string()) + " 2>" + quoted((folder_ / "stderr").string());
    const int status = std::system(line.c_str());
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

bool HeadlessRun::install(const fs::path& clip, const std::vector<std::string>& settings) const {
    std::vector<std::string> command = {ZK_SOURCE_FOLDER "/packaging/lay_out_installation.sh",
                                        ZK_BUILD_FOLDER, installation().string(), clip.string(), ""};
    command.insert(command.end(), settings.begin(), settings.end());
    const int status = run(command);
    EXPECT_EQ(status, 0) << readFile(folder_ / "stderr");
    return status == 0;
}

int HeadlessRun::play() {
    const int status = run({ZK_BUILD_FOLDER "/bin/headless", "--plugins",
                            (installation() / "kestrelstudio/plugins/win/x64").string(), "--registry",
                            (installation() / "installation.reg").string(), "--report",
                            (installation() / "report.txt").string(), "--log",
                            (installation() / "logs/adaptor.log").string(), "--log",
                            (installation() / "logs/core.log").string(), "--out", out().string()});
    standardOutput_ = readFile(folder_ / "stdout");
    standardError_ = readFile(folder_ / "stderr");
    return status;
}

std::string HeadlessRun::readFile(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(file), {});
}

void HeadlessRun::writeFile(const fs::path& path, const std::string& text) {
    std::ofstream(path, std::ios::binary) << text;
}

}  // namespace scenario
