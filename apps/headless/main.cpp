#include <cstdio>
#include <exception>

#include "apps/headless/ClipError.h"
#include "apps/headless/Interrupted.h"
#include "apps/headless/Session.h"
#include "apps/headless/platform/Platform.h"

namespace {

constexpr int kFailed = 1, kBadClip = 2, kInterrupted = 128;

int fail(const std::exception& error, int status) {
    std::fprintf(stderr, "%s\n", error.what());
    return status;
}

void printSummary(const headless::Summary& summary) {
    std::printf("%zu joints, %zu frames at %.5g per second, %zu keys\n", summary.joints, summary.frames,
                summary.framesPerSecond, summary.keys);
    std::printf("plays back the same after undo and redo, and after saving, resetting and opening\n");
}

}  // namespace

int main(int count, char** arguments) {
    try {
        const headless::Options options = headless::Options::parse(count, arguments);
        headless::platform::keepInterrupts();
        headless::Session session(options);
        session.run();
        printSummary(session.summary());
        return 0;
    } catch (const headless::UsageError& error) {
        std::fprintf(stderr, "headless: %s\n%s\n", error.what(), headless::Options::usage());
        return kFailed;
    } catch (const headless::ClipError& error) {
        return fail(error, kBadClip);
    } catch (const headless::Interrupted& error) {
        return fail(error, kInterrupted + error.signal);
    } catch (const std::exception& error) {
        return fail(error, kFailed);
    }
}
