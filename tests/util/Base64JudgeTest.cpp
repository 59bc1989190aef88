// The system's own base64 command as judge.

#include <gtest/gtest.h>

#include <cstdio>
#include <string>

#include "util/Base64.h"
#include "util/BlockCompression.h"

namespace qvo::util {
namespace {

std::string outputOf(const std::string& command) {
    std::string output;
    FILE* const pipe = popen(command.c_str(), "r");
    if (!pipe) return output;
    for (int c = std::fgetc(pipe); c != EOF; c = std::fgetc(pipe))
        output += static_cast<char>(c);
    EXPECT_EQ(pclose(pipe), 0) << command;
    return output;
}

TEST(Base64Judge, AgreesWithTheSystemsCommand) {
    const std::string path = ::testing::TempDir() + "zk_base64_judge";
    for (const std::size_t length :
         {0u, 1u, 2u, 3u, 4u, 5u, 57u, 58u, 255u, 256u, 4094u, 4095u, 4096u, 100001u}) {
        ByteBuffer bytes(length);
        unsigned state = 1;
        for (unsigned char& byte : bytes)
            byte = static_cast<unsigned char>((state = state * 1103515245u + 12345u) >> 16);
        ASSERT_TRUE(BlockCompression::writeFile(bytes, path));
        const std::string judged = outputOf("base64 -w0 '" + path + "'");
        EXPECT_EQ(Base64::encode(bytes), judged) << length;
        EXPECT_EQ(Base64::decode(judged), bytes) << length;
    }
    std::remove(path.c_str());
}

}  // namespace
}  // namespace qvo::util
