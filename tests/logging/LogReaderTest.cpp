#include <gtest/gtest.h>

#include "logging/LogReader.h"
#include "tests/support/MemoryFiles.h"

namespace corvex::test {
namespace {

using Bytes = MemoryFiles::Bytes;

class LogReaderTest : public ::testing::Test {
protected:
    void Begin(std::size_t size) {
        for (std::size_t i = 0; i < size; ++i)
            content_.push_back(static_cast<std::uint8_t>((i * 31 + i / 256) & 0xFFU));
        files_.Put("f", content_);
        file_ = files_.Open("f", FileAccess::kReadWrite);
        reader_.Attach(file_.get());
    }
    Bytes Part(std::size_t from, std::size_t count) const {
        const auto at = content_.begin() + static_cast<std::ptrdiff_t>(from);
        return {at, at + static_cast<std::ptrdiff_t>(count)};
    }
    Bytes Read(std::uint32_t count) {
        Bytes bytes(count);
        bytes.resize(reader_.Read(bytes.data(), count).value());
        return bytes;
    }

    MemoryFiles files_;
    Bytes content_;
    std::unique_ptr<IFile> file_;
    LogReader reader_;
};

TEST_F(LogReaderTest, ReadsSmallPiecesByOneCall) {
    Begin(1000);
    for (std::size_t at = 0; at < 1000; at += 10)
        ASSERT_EQ(Part(at, 10), Read(10)) << at;
    EXPECT_EQ(1U, files_.reads);
    EXPECT_EQ(1000U, reader_.Position());
}

TEST_F(LogReaderTest, ReadsAcrossWhatWasReadAhead) {
    const std::size_t size = 3 * LogReader::kReadAhead + 77;
    Begin(size);
    std::size_t at = 0;
    for (; at + 1000 <= size; at += 1000)
        ASSERT_EQ(Part(at, 1000), Read(1000)) << at;
    EXPECT_EQ(Part(at, size - at), Read(1000));
    EXPECT_EQ(Bytes(), Read(1000));
}

TEST_F(LogReaderTest, ReadsMoreThanItReadsAhead) {
    Begin(2 * LogReader::kReadAhead + 5);
    Read(3);
    EXPECT_EQ(Part(3, LogReader::kReadAhead + 999), Read(LogReader::kReadAhead + 999));
}

TEST_F(LogReaderTest, GoesBackWithinWhatWasReadForNothing) {
    Begin(1000);
    Read(600);
    reader_.Seek(5);
    EXPECT_EQ(5U, reader_.Position());
    EXPECT_EQ(Part(5, 20), Read(20));
    EXPECT_EQ(1U, files_.reads);
}

TEST_F(LogReaderTest, GoesAnywhere) {
    Begin(2 * LogReader::kReadAhead);
    Read(10);
    reader_.Seek(LogReader::kReadAhead + 100);
    EXPECT_EQ(Part(LogReader::kReadAhead + 100, 10), Read(10));
    reader_.Seek(0);
    EXPECT_EQ(Part(0, 10), Read(10));
    reader_.Seek(0xFFFFFFFF);
    EXPECT_EQ(Bytes(), Read(10));
    EXPECT_EQ(0xFFFFFFFFU, reader_.Position());
}

TEST_F(LogReaderTest, AsksAnewAtTheEndOfAFileThatGrows) {
    Begin(10);
    EXPECT_EQ(10U, Read(20).size());
    EXPECT_EQ(0U, Read(20).size());
    const std::unique_ptr<IFile> writer = files_.Open("f", FileAccess::kReadWrite);
    ASSERT_TRUE(writer->Seek(10));
    ASSERT_TRUE(writer->Write("xyz", 3));
    EXPECT_EQ((Bytes{'x', 'y', 'z'}), Read(20));
}

TEST_F(LogReaderTest, ForgetsWhatItReadWhenTold) {
    Begin(10);
    Read(2);
    const std::unique_ptr<IFile> writer = files_.Open("f", FileAccess::kReadWrite);
    ASSERT_TRUE(writer->Write("abcdefgh", 8));
    reader_.Discard();
    EXPECT_EQ(2U, reader_.Position());
    EXPECT_EQ((Bytes{'c', 'd'}), Read(2));
}

TEST_F(LogReaderTest, ReadsFromItsOwnPlaceWhateverTheFileDid) {
    Begin(LogReader::kReadAhead * 2);
    Read(10);
    ASSERT_TRUE(file_->Seek(77));
    reader_.Seek(LogReader::kReadAhead);
    EXPECT_EQ(Part(LogReader::kReadAhead, 4), Read(4));
}

TEST_F(LogReaderTest, TellsFailureFromTheEnd) {
    Begin(10);
    std::uint8_t byte = 0;
    files_.failReads = true;
    EXPECT_FALSE(reader_.Read(&byte, 1).has_value());
    files_.failReads = false;
    files_.failSeeks = true;
    reader_.Seek(500);
    EXPECT_FALSE(reader_.Read(&byte, 1).has_value());
    reader_.Attach(nullptr);
    EXPECT_FALSE(reader_.Read(&byte, 1).has_value());
}

}  // namespace
}  // namespace corvex::test
