#include <gtest/gtest.h>

#include <string>

#include "session/DefinitionOrigin.h"

namespace corvex::test {
namespace {

// A letter for each thing that happened: L a load, l a failed one, I an import, i a failed one, S a save, E an edit.
DefinitionOrigin AfterSteps(const std::string& history) {
    DefinitionOrigin origin;
    for (const char step : history) {
        if (step == 'L' || step == 'l') origin.Loaded(step == 'L');
        if (step == 'I' || step == 'i') origin.Imported(step == 'I');
        if (step == 'S') origin.Saved();
        if (step == 'E') origin.FileEdited();
    }
    return origin;
}

TEST(DefinitionOriginTest, FollowsWhereTheDefinitionCameFrom) {
    const struct {
        const char *name, *history;
        bool hasFile, isUnsaved;
    } rows[] = {
        {"it begins without a file and with nothing to save", "", false, false},
        {"a load gives a file", "L", true, false},
        {"a failed one takes it", "Ll", false, false},
        {"until the next load", "LlL", true, false},
        {"a save gives a file to nothing", "S", true, false},
        {"to a rest", "lS", true, false},
        {"and to an import", "IS", true, false},
        {"an import is unsaved", "I", false, true},
        {"behind a failed load too", "lI", false, true},
        {"and behind a good one", "LI", false, true},
        {"a failed import takes the file of what was whole before", "Li", false, true},
        {"and makes nothing worth a file that was not", "i", false, false},
        {"nor a rest", "li", false, false},
        {"an edited file is not its own until it is loaded", "LE", false, false},
        {"and then is", "LEL", true, false},
        {"an edit leaves an import unsaved", "LIE", false, true},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(row.hasFile, AfterSteps(row.history).HasFile()) << row.name;
        EXPECT_EQ(row.isUnsaved, AfterSteps(row.history).IsUnsaved()) << row.name;
    }
}

}  // namespace
}  // namespace corvex::test
