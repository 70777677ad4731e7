#include <gtest/gtest.h>

#include <atomic>
#include <filesystem>
#include <string>
#include <thread>

#include "platform/File.h"
#include "tests/support/TestFolder.h"

namespace corvex {
namespace {

class FileTest : public ::testing::Test {
protected:
    std::unique_ptr<IFile> Open(FileAccess access) const { return SystemFiles().Open(path_, access); }
    void Fill(const std::string& text) const {
        const auto file = Open(FileAccess::kCreate);
        ASSERT_TRUE(file && file->Write(text.data(), static_cast<std::uint32_t>(text.size())));
    }
    std::string Content() const {
        const auto file = Open(FileAccess::kRead);
        std::string text(1000, '?');
        text.resize(file ? file->Read(text.data(), 1000).value_or(0) : 0);
        return text;
    }

    const test::TestFolder folder_;
    const std::string path_ = folder_.Name("one.bin");
};

TEST_F(FileTest, CreatesAndEmpties) {
    Fill("old and longer");
    Fill("new");
    EXPECT_EQ("new", Content());
}

TEST_F(FileTest, IsClosedOnceAndAheadOfItsDestructorWhenAsked) {
    const auto file = Open(FileAccess::kCreate);
    ASSERT_TRUE(file && file->Write("new", 3));
    EXPECT_TRUE(file->Close());
    EXPECT_FALSE(file->Close());
    EXPECT_FALSE(file->Write("more", 4));
    EXPECT_EQ("new", Content());
}

TEST_F(FileTest, OpensOnlyFilesThatAreThere) {
    for (const std::string& path : {path_, folder_.Path().string()}) {
        std::string error;
        EXPECT_FALSE(SystemFiles().Open(path, FileAccess::kRead, &error));
        EXPECT_NE("", error);
    }
    EXPECT_FALSE(Open(FileAccess::kReadWrite));
    EXPECT_FALSE(std::filesystem::exists(path_));
    EXPECT_FALSE(SystemFiles().Open(folder_.Name("no/such"), FileAccess::kCreate));
}

TEST_F(FileTest, PositionFollowsReadsAndWrites) {
    const auto file = Open(FileAccess::kCreate);
    ASSERT_TRUE(file);
    EXPECT_EQ(0U, file->Position());
    ASSERT_TRUE(file->Write("hello", 5));
    EXPECT_EQ(5U, file->Position());
    ASSERT_TRUE(file->Seek(1));
    char text[3];
    EXPECT_EQ(3U, file->Read(text, 3));
    EXPECT_EQ("ell", std::string(text, 3));
    EXPECT_EQ(4U, file->Position());
    ASSERT_TRUE(file->Write("0!", 2));
    EXPECT_EQ(6U, file->Size());
    ASSERT_TRUE(file->Seek(0));
    char whole[10];
    EXPECT_EQ(6U, file->Read(whole, 10));
    EXPECT_EQ("hell0!", std::string(whole, 6));
    EXPECT_EQ(0U, file->Read(whole, 10));
}

TEST_F(FileTest, EndsWhereItStands) {
    Fill("0123456789");
    for (const auto& [at, left] : {std::pair{4U, std::string("0123")}, std::pair{6U, std::string("0123\0\0", 6)}}) {
        {
            const auto file = Open(FileAccess::kReadWrite);
            ASSERT_TRUE(file && file->Seek(at) && file->EndHere());
        }
        EXPECT_EQ(left, Content());
    }
}

TEST_F(FileTest, FileToReadGivesNothingPastItsEndAndTakesNoWrites) {
    Fill("abc");
    const auto file = Open(FileAccess::kRead);
    ASSERT_TRUE(file);
    EXPECT_FALSE(file->Write("x", 1));
    EXPECT_FALSE(file->EndHere());
    ASSERT_TRUE(file->Seek(0xFFFFFFFF));
    char byte = 0;
    EXPECT_EQ(0U, file->Read(&byte, 1));
    EXPECT_EQ("abc", Content());
}

// Two that write at once would write over each other.
TEST_F(FileTest, OneMayWriteAndAnyNumberRead) {
    Fill("abc");
    for (const FileAccess access : {FileAccess::kCreate, FileAccess::kReadWrite}) {
        const auto before = Open(FileAccess::kRead);
        const auto writer = Open(access);
        ASSERT_TRUE(before && writer && writer->Write("123", 3));
        std::string error;
        EXPECT_FALSE(SystemFiles().Open(path_, FileAccess::kCreate, &error));
        EXPECT_NE("", error);
        EXPECT_FALSE(Open(FileAccess::kReadWrite));
        EXPECT_EQ("123", Content());
        char text[3];
        EXPECT_EQ(3U, before->Read(text, 3));
    }
    EXPECT_TRUE(Open(FileAccess::kReadWrite));
}

TEST_F(FileTest, KnowsWhetherItStillHasItsName) {
    Fill("abc");
    const std::string other = path_ + ".other";
    {
        const auto file = Open(FileAccess::kRead);
        ASSERT_TRUE(file);
        EXPECT_TRUE(file->StandsAt(path_));
        EXPECT_FALSE(file->StandsAt(other));
        std::filesystem::rename(path_, other);
        EXPECT_FALSE(file->StandsAt(path_));
        Fill("new");
        EXPECT_FALSE(file->StandsAt(path_));
        EXPECT_TRUE(file->StandsAt(other));
    }
}

TEST_F(FileTest, IsSyncedWhileItIsWrittenAndBehindItsEnd) {
    auto file = Open(FileAccess::kCreate);
    ASSERT_TRUE(file);
    const std::unique_ptr<IFileSync> sync = file->OpenSync();
    ASSERT_TRUE(sync);
    std::atomic<bool> good{true};
    std::thread other([&] {
        for (int i = 0; i < 20; ++i) {
            if (!sync->Sync()) good = false;
        }
    });
    for (int i = 0; i < 1000; ++i)
        EXPECT_TRUE(file->Write("x", 1));
    other.join();
    EXPECT_TRUE(good);
    file.reset();
    EXPECT_TRUE(sync->Sync());
    EXPECT_FALSE(Open(FileAccess::kCreate));  // still the one that writes
    EXPECT_EQ(1000U, Content().size());
}

}  // namespace
}  // namespace corvex
