#include "apps/cli/LegacyFile.h"

#include <algorithm>
#include <ostream>
#include <string_view>

#include "apps/cli/WriteFailure.h"
#include "definition/ADXListView.h"
#include "export/text/TextFormat.h"
#include "files/ads/AdsConverter.h"

namespace corvex {
namespace {

// Parts of a sentence; a count of nothing is no part.
class NoteList {
public:
    void Add(std::string_view before, std::size_t count, std::string_view noun, std::string_view after = "") {
        if (count == 0) return;
        if (!text_.empty()) text_.append("; ");
        text_.append(before).append(Counted(count, noun)).append(after);
    }
    std::string Text() const { return text_; }

private:
    std::string text_;
};

template <class List>
std::size_t ListedItems(const List& list) {
    return static_cast<std::size_t>(
        std::count_if(list.begin(), list.end(), [](const auto& item) { return item->bSeparator == 0; }));
}

}  // namespace

bool IsLegacyFile(const std::string& path) {
    constexpr std::string_view kExtension = ".ads";
    if (path.size() < kExtension.size()) return false;
    return std::equal(kExtension.begin(), kExtension.end(), path.end() - kExtension.size(),
                      [](char a, char b) { return a == (b >= 'A' && b <= 'Z' ? b - 'A' + 'a' : b); });
}

std::string ImportNotes(const AdsReader& reader) {
    const AdsLosses& losses = reader.Losses();
    if (!losses.header) return "no header in it, so nothing was imported";
    if (reader.Header().fDefFrmtVers < 1.0F) return "its format version is below 1.0, so nothing was imported";
    NoteList notes;
    notes.Add("left out ", reader.Dashes().size(), "dashboard");
    notes.Add("left out ", losses.extracommands, "command", " beyond the tenth");
    notes.Add("left out ", losses.otheritems, "item", " of types without data");
    notes.Add("gave a new number to ", losses.renumbered, "item", " whose number was taken");
    notes.Add("cut ", losses.cutfields, "field", " at 255 characters");
    notes.Add("cut ", losses.cuttables, "table", " that claimed to be larger than the file");
    notes.Add("left out ", losses.tablelines, "table line", " outside of the table");
    const std::size_t items = ListedItems(reader.Values()) + ListedItems(reader.Bits());
    constexpr std::size_t kRows = ADXListView::kLimit;
    notes.Add("the item list had no row for ", items > kRows ? items - kRows : 0, "item");
    return notes.Text();
}

bool ImportDefinition(ADXDefinition& definition, const std::string& path, std::ostream& err) {
    AdsReader reader;
    ForgetReason();
    if (ReadAds(path.c_str(), &reader) == 0) {
        const std::string reason = ReasonNotWritten("");
        err << "corvex-cli: " << path << ": cannot be read" << (reason.empty() ? "" : ": " + reason) << '\n';
        return false;
    }
    if (ConvertAds(&definition, &reader) == 0) return false;
    const std::string notes = ImportNotes(reader);
    const bool empty = !reader.Losses().header || definition.GetCount() == 0;
    if (empty && reader.Losses().header && notes.empty()) {
        err << "corvex-cli: " << path << ": there is nothing in it that a definition could hold\n";
        return false;
    }
    if (!notes.empty()) err << "corvex-cli: " << path << ": " << notes << '\n';
    return !empty;
}

}  // namespace corvex
