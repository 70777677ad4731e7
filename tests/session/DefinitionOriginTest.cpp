#include <gtest/gtest.h>

#include <string>

#include "session/DefinitionOrigin.h"

namespace corvex::test {
namespace {

// As a letter each: does it have a file, and is it unsaved?
std::string Look(const DefinitionOrigin& origin) {
    return std::string(origin.HasFile() ? "F" : "-") + (origin.IsUnsaved() ? "U" : "-");
}

TEST(DefinitionOriginTest, BeginsWithoutAFileAndWithNothingToSave) {
    EXPECT_EQ("--", Look(DefinitionOrigin()));
}

TEST(DefinitionOriginTest, ALoadGivesAFileAndAFailedOneTakesIt) {
    DefinitionOrigin origin;
    origin.Loaded(true);
    EXPECT_EQ("F-", Look(origin));
    origin.Loaded(false);
    EXPECT_EQ("--", Look(origin));
    origin.Loaded(true);
    EXPECT_EQ("F-", Look(origin));
}

TEST(DefinitionOriginTest, ASaveGivesAFileToAnything) {
    DefinitionOrigin nothing, rest, imported;
    rest.Loaded(false);
    imported.Imported(true);
    for (DefinitionOrigin* origin : {&nothing, &rest, &imported}) {
        origin->Saved();
        EXPECT_EQ("F-", Look(*origin));
    }
}

TEST(DefinitionOriginTest, AnImportIsUnsavedWhateverWasBefore) {
    DefinitionOrigin origin;
    origin.Imported(true);
    EXPECT_EQ("-U", Look(origin));
    origin.Loaded(false);
    origin.Imported(true);
    EXPECT_EQ("-U", Look(origin));
    origin.Loaded(true);
    origin.Imported(true);
    EXPECT_EQ("-U", Look(origin));
}

// What was whole before is so still; what was not is not made worth a file by it.
TEST(DefinitionOriginTest, AFailedImportOnlyTakesTheFile) {
    DefinitionOrigin origin;
    origin.Imported(false);
    EXPECT_EQ("--", Look(origin));
    origin.Loaded(false);
    origin.Imported(false);
    EXPECT_EQ("--", Look(origin));
    origin.Loaded(true);
    origin.Imported(false);
    EXPECT_EQ("-U", Look(origin));
}

TEST(DefinitionOriginTest, AnEditedFileIsNotItsOwnUntilItIsLoaded) {
    DefinitionOrigin origin;
    origin.Loaded(true);
    origin.FileEdited();
    EXPECT_EQ("--", Look(origin));
    origin.Loaded(true);
    EXPECT_EQ("F-", Look(origin));
    origin.Imported(true);
    origin.FileEdited();
    EXPECT_EQ("-U", Look(origin));
}

}  // namespace
}  // namespace corvex::test
