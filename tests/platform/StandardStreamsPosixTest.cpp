#include <gtest/gtest.h>
#include <unistd.h>

#include "platform/File.h"
#include "platform/StandardStreams.h"
#include "tests/support/PeerProcess.h"
#include "tests/support/TestFolder.h"

namespace corvex::test {
namespace {

// 0, or the number of the first thing that is not as it has to be. In a process of its own, which has streams to lose.
int WriteALogWithStreamsClosed(const std::string& path, unsigned closed) {
    for (int stream = 0; stream < 3; ++stream) {
        if ((closed >> stream & 1U) != 0) close(stream);
    }
    HoldStandardStreams();
    const std::unique_ptr<IFile> log = SystemFiles().Open(path, FileAccess::kCreate);
    if (!log || !log->Write("records", 7)) return 1;
    for (const int stream : {STDOUT_FILENO, STDERR_FILENO}) {
        if ((closed >> stream & 1U) != 0 && write(stream, "text", 4) != 4) return 2;
    }
    char byte = 0;
    return (closed & 1U) != 0 && read(STDIN_FILENO, &byte, 1) != 0 ? 3 : 0;
}

TEST(StandardStreamsPosixTest, NoFileGetsTheDescriptorOfAClosedStream) {
    const TestFolder folder;
    for (unsigned closed = 0; closed < 8; ++closed) {
        PeerProcess peer([&] { return WriteALogWithStreamsClosed(folder.Name("log"), closed); });
        EXPECT_EQ(0, peer.Wait()) << closed;
        EXPECT_EQ("records", folder.Content("log")) << closed;
    }
}

}  // namespace
}  // namespace corvex::test
