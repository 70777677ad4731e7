#include "apps/cli/SqliteTable.h"

#include <sqlite3.h>

#include <map>
#include <set>
#include <vector>

#include "apps/cli/AtomicReplace.h"
#include "apps/cli/WriteFailure.h"
#include "export/LogTime.h"
#include "export/RecordDecoder.h"
#include "export/text/ObjectNames.h"
#include "export/text/TextFormat.h"

namespace corvex {

namespace {

struct DatabaseCloser {
    void operator()(sqlite3* database) const { sqlite3_close_v2(database); }
};
struct StatementCloser {
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};
using Statement = std::unique_ptr<sqlite3_stmt, StatementCloser>;

std::string Quoted(const std::string& name) {
    std::string text = "\"";
    for (const char c : name) {
        // A name ends at a zero, and a quote is written twice.
        if (c == '"') text += c;
        text += c;
    }
    return text + '"';
}

// Names that a database tells apart, which it does without regard to the case of letters a to z.
class UniqueNames {
public:
    explicit UniqueNames(std::initializer_list<const char*> taken) : taken_(taken.begin(), taken.end()) {}
    std::string Make(std::string name) {
        if (name.empty()) name = "unnamed";
        // The database keeps such names for itself.
        if (Lower(name).starts_with("sqlite_")) name.insert(0, "_");
        std::string unique = name;
        for (int i = 2; !taken_.insert(Lower(unique)).second; ++i)
            unique = name + ' ' + std::to_string(i);
        return unique;
    }

private:
    static std::string Lower(std::string text) {
        for (char& c : text)
            c = c >= 'A' && c <= 'Z' ? static_cast<char>(c | 0x20) : c;
        return text;
    }
    std::set<std::string> taken_;
};

class SqliteTable final : public IRecordTable {
public:
    explicit SqliteTable(const std::string& path) : path_(path), fresh_(path) {}

    bool Begin(const DecodedLog& first) override {
        ForgetReason();
        sqlite3* opened = nullptr;
        const bool open = !fresh_.Name().empty() && sqlite3_open(fresh_.Name().c_str(), &opened) == SQLITE_OK;
        database_.reset(opened);
        if (!open) return Fail(ReasonNotWritten(path_));
        // The file is nobody's until it is whole, so nothing has to survive a fall of the machine.
        Run("PRAGMA journal_mode=OFF");
        Run("PRAGMA synchronous=OFF");
        Run("BEGIN");
        Run("CREATE TABLE logs (id INTEGER PRIMARY KEY, file TEXT, start TEXT, records INTEGER)");
        for (const auto& object : first.definition.Objects()) {
            if (object->IsOneOf(kPacketTypes) && !tables_.contains(object->GetIdHash())) MakeTable(first, *object);
        }
        return good_;
    }

    bool BeginLog(const DecodedLog& log) override {
        CountRecords();
        ++logs_;
        const LogHeader& header = log.log.header;
        const std::string start = IsDate(header.startTime) ? AbsoluteTimeText(header.startTime, 0) : "";
        const Statement insert = Prepare("INSERT INTO logs VALUES (?, ?, ?, 0)");
        if (!insert) return false;
        sqlite3_bind_int64(insert.get(), 1, logs_);
        Bind(insert.get(), 2, Utf8Text(log.path));
        if (!start.empty()) Bind(insert.get(), 3, start);
        return Step(insert.get());
    }

    void AddRow(DecodedLog& log, std::uint32_t timeMs, const DecodedRecord& record) override {
        log.columns->ReadRow(record, numbers_);
        const auto found = tables_.find(record.commandId);
        if (!good_ || found == tables_.end()) return;
        sqlite3_stmt* const insert = found->second.insert.get();
        sqlite3_bind_int64(insert, 1, logs_);
        sqlite3_bind_double(insert, 2, timeMs / 1000.0);
        int place = 3;
        // What is no number is stored as none.
        for (const std::size_t column : found->second.columns)
            sqlite3_bind_double(insert, place++, numbers_[column]);
        Step(insert);
        sqlite3_reset(insert);
        ++records_;
    }

    bool Good() const override { return good_; }
    bool Flush() override { return good_; }

    bool Finish() override {
        CountRecords();
        for (const auto& [command, table] : tables_)
            Run("CREATE INDEX " + Quoted(table.name + " by time") + " ON " + Quoted(table.name) + " (log, t)");
        Run("COMMIT");
        tables_.clear();
        database_.reset();
        ForgetReason();
        return good_ && (fresh_.MoveIntoPlace() || Fail(ReasonNotWritten(path_)));
    }

    std::string Reason() const override { return reason_; }

private:
    struct Table {
        std::string name;
        std::vector<std::size_t> columns;  // of all that are written
        Statement insert;
    };

    void MakeTable(const DecodedLog& log, const ADXObject& command) {
        Table table{tableNames_.Make(Utf8Text(*command.Id() != '\0' ? command.Id() : command.Title())), {}, nullptr};
        UniqueNames names{"log", "t"};
        std::string fields = "log INTEGER REFERENCES logs(id), t REAL", places = "?, ?";
        std::size_t index = 0;
        for (const ColumnSet::Field& field : log.columns->Fields()) {
            if (BelongsToCommand(field.parent, command.GetIdHash())) {
                fields += ", " + Quoted(names.Make(field.name)) + " REAL";
                places += ", ?";
                table.columns.push_back(index);
            }
            ++index;
        }
        Run("CREATE TABLE " + Quoted(table.name) + " (" + fields + ")");
        if (good_) table.insert = Prepare("INSERT INTO " + Quoted(table.name) + " VALUES (" + places + ")");
        tables_.emplace(command.GetIdHash(), std::move(table));
    }

    void CountRecords() {
        if (logs_ != 0)
            Run("UPDATE logs SET records = " + std::to_string(records_) + " WHERE id = " + std::to_string(logs_));
        records_ = 0;
    }

    bool Fail(const std::string& reason) {
        if (good_) reason_ = reason;
        good_ = false;
        return false;
    }
    bool Check(int result) {
        const bool fine = result == SQLITE_OK || result == SQLITE_DONE || result == SQLITE_ROW;
        return fine || Fail(sqlite3_errmsg(database_.get()));
    }
    void Run(const std::string& text) {
        if (good_) Check(sqlite3_exec(database_.get(), text.c_str(), nullptr, nullptr, nullptr));
    }
    Statement Prepare(const std::string& text) {
        sqlite3_stmt* statement = nullptr;
        if (good_) Check(sqlite3_prepare_v2(database_.get(), text.c_str(), -1, &statement, nullptr));
        return Statement(statement);
    }
    static void Bind(sqlite3_stmt* statement, int place, const std::string& text) {
        sqlite3_bind_text(statement, place, text.c_str(), -1, SQLITE_TRANSIENT);
    }
    bool Step(sqlite3_stmt* statement) { return good_ && Check(sqlite3_step(statement)); }

    const std::string path_;
    AtomicReplace fresh_;
    std::unique_ptr<sqlite3, DatabaseCloser> database_;
    UniqueNames tableNames_{"logs"};
    std::map<std::uint32_t, Table> tables_;  // by the command's hash
    std::vector<double> numbers_;
    std::int64_t logs_ = 0, records_ = 0;
    std::string reason_;
    bool good_ = true;
};

}  // namespace

std::unique_ptr<IRecordTable> MakeSqliteTable(const std::string& path) {
    return std::make_unique<SqliteTable>(path);
}

}  // namespace corvex
