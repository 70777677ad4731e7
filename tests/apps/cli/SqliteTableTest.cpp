#include <gtest/gtest.h>
#include <sqlite3.h>

#include "tests/apps/cli/LogTestHelper.h"
#include "tests/support/AdxText.h"

namespace corvex {
namespace {

using test::Bytes;
using test::LogBytes;

// The rows of an answer, "a|b" each.
Words Ask(const std::string& path, const std::string& question) {
    sqlite3* database = nullptr;
    EXPECT_EQ(sqlite3_open_v2(path.c_str(), &database, SQLITE_OPEN_READONLY, nullptr), SQLITE_OK);
    Words rows;
    const auto take = [](void* words, int count, char** texts, char**) {
        std::string row;
        for (int i = 0; i < count; ++i)
            row += (i == 0 ? "" : "|") + std::string(texts[i] != nullptr ? texts[i] : "null");
        static_cast<Words*>(words)->push_back(row);
        return 0;
    };
    EXPECT_EQ(sqlite3_exec(database, question.c_str(), take, &rows, nullptr), SQLITE_OK) << sqlite3_errmsg(database);
    sqlite3_close(database);
    return rows;
}

TEST(SqliteTableTest, HoldsATableForEachCommandAndOneOfTheLogs) {
    const TempFile adx(StreamDefinition(ValueText("RPM", "X", test::AdxParent("POLL")) + ValueText("V", "X*10") +
                                        "<ADXVALUE id=\"Q\" title=\"v TITLE\"><packetoffset>0x00</packetoffset>"
                                        "<MATH equation=\"(0-1)#0.5+X\" /></ADXVALUE>"));
    const TempFile db("precious", ".db");
    LogBytes log = BeginLog({kPollHash, kStreamHash});
    log.Record(0, 0, PollReply({5})).Record(1, 1500, Bytes(24, 7)).Record(0, 2000, PollReply({6})).MarkEnd();
    const LogTempFile first(log), second(BeginLog({kPollHash}).Record(0, 0, PollReply({9})));
    const ToolResult result =
        RunInside({"decode", "-d", adx.Path(), first.Path(), second.Path(), "--sqlite", db.Path(), "--to", "1.9"});
    EXPECT_EQ(result.code, 0) << result.err;
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(Ask(db.Path(), "SELECT id, file, start, records FROM logs"),
              (Words{"1|" + first.Path() + "|2026-07-01T12:34:56.789|2",
                     "2|" + second.Path() + "|2026-07-01T12:34:56.789|1"}));
    EXPECT_EQ(Ask(db.Path(), "SELECT log, t, \"RPM title\", \"V title\", \"v TITLE 2\" FROM POLL"),
              (Words{"1|0.0|5.0|50.0|null", "2|0.0|9.0|90.0|null"}));
    EXPECT_EQ(Ask(db.Path(), "SELECT log, t, \"V title\" FROM STREAM"), Words{"1|1.5|70.0"});
    EXPECT_EQ(Ask(db.Path(), "SELECT count(*) FROM sqlite_master WHERE type = 'index'"), Words{"2"});
}

TEST(SqliteTableTest, LeavesWhatStandsThereWhenItFails) {
    const TempFile adx(DefinitionWith(ValueText("RPM", "X"))), db("precious", ".db");
    const LogTempFile foreign(BeginLog({0x1234}).Record(0, 0, Bytes(24, 1)));
    EXPECT_EQ(RunInside({"decode", "-d", adx.Path(), foreign.Path(), "--sqlite", db.Path()}).code, 1);
    EXPECT_EQ(ReadFile(db.Path()), "precious");
    const LogTempFile polls(BeginLog({kPollHash}).Record(0, 0, PollReply({9})));
    const ToolResult folder = RunInside({"decode", "-d", adx.Path(), polls.Path(), "--sqlite", "no/such/x.db"});
    EXPECT_EQ(folder.code, 1);
    EXPECT_EQ(folder.err, "corvex-cli: no/such/x.db cannot be written: its folder is not there\n");
}

}  // namespace
}  // namespace corvex
