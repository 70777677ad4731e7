#include "tests/program/ProgramTest.h"

namespace corvex::test {
namespace {

constexpr char kLoadTitle[] = "Select ADX...", kSaveTitle[] = "Choose file to save to...",
               kImportTitle[] = "Select file to import...";

class DefinitionFiles : public ProgramTest {
protected:
    void Load(const std::string& path) {
        Window().Send(kLoadDefinition);
        ChooseFile(program->Id(), kLoadTitle, path);
    }
    void Import(const std::string& path) {
        Window().Send(kImportDefinition);
        ChooseFile(program->Id(), kImportTitle, path);
    }
    void ExpectTitle(const std::string& adx) {
        const std::string title = TitleOf(adx);
        EXPECT_TRUE(Eventually([&] { return Window().Title() == title; })) << Window().Title();
    }
    // Save and Save As both end in this dialog when there is no name.
    void ExpectSaveAsksForAName() {
        Window().Send(kSaveDefinition);
        CancelDialog(program->Id(), kSaveTitle);
    }
};

TEST_F(DefinitionFiles, AreLoadedByTheOpenDialog) {
    Settle({{"loadlastdef", "0"}});
    Start();
    const std::string path = folder.TakeExample("osprey-multi.adx");
    Load(path);
    ExpectOutput("Loaded " + path);
    ExpectTitle(folder.ShortName("osprey-multi.adx"));
    CloseProgram();
    EXPECT_EQ(folder.Settings().at("lastadxpath"), path);
}

TEST_F(DefinitionFiles, ThatAreBrokenAreToldWithTheReason) {
    Settle();
    Start();
    folder.Files().Put("broken.adx", "<ADXFORMAT version=\"0.50\" />\r\n<ADXHEADER>\r\n<flags>0x00</fl");
    Load(folder.Name("broken.adx"));
    ExpectOutput("FAILED to Load " + folder.Name("broken.adx"));
    EXPECT_TRUE(Eventually([&] { return Window().OutputLines().size() == 3; })) << Window().Output();
    CloseProgram();
    EXPECT_EQ(folder.Settings().at("lastadxpath"), Definition());
}

TEST_F(DefinitionFiles, AreNotReplacedByTheRestOfABrokenOne) {
    Settle();
    Start();
    ExpectOutput("Loaded ");
    const std::string good = folder.Files().Content("harrier-8192.adx");
    folder.Files().Put("broken.adx", good.substr(0, good.size() / 3));
    Load(folder.Name("broken.adx"));
    ExpectOutput("FAILED to Load " + folder.Name("broken.adx"));
    ExpectSaveAsksForAName();
    EXPECT_EQ(folder.Files().Content("harrier-8192.adx"), good);
}

TEST_F(DefinitionFiles, StayWhenTheOpenDialogIsCancelled) {
    Settle();
    Start();
    const std::string output = Window().Output(), title = Window().Title();
    Window().Send(kLoadDefinition);
    CancelDialog(program->Id(), kLoadTitle);
    Window().Send(kSpeed100);
    EXPECT_EQ(Window().Title(), title);
    EXPECT_EQ(Window().Output(), output);
}

TEST_F(DefinitionFiles, AreSavedUnderTheirName) {
    Settle();
    Start();
    ExpectOutput("Loaded ");
    folder.Files().Put("harrier-8192.adx", "");
    Window().Send(kSaveDefinition);
    EXPECT_TRUE(Eventually([&] { return folder.Size("harrier-8192.adx") > 10000; })) << Window().Output();
}

TEST_F(DefinitionFiles, WithoutANameAreSavedAsWithOne) {
    Settle({{"lastadxpath", ""}});
    Start();
    Window().Send(kSaveDefinition);
    ChooseFile(program->Id(), kSaveTitle, folder.Name("new.adx"));
    EXPECT_TRUE(Eventually([&] { return folder.Files().Has("new.adx"); }));
    CloseProgram();
    EXPECT_EQ(folder.Settings().at("lastadxpath"), folder.Name("new.adx"));
}

TEST_F(DefinitionFiles, AreReplacedWhenTheUserSaysSo) {
    folder.Files().Put("old.adx", "old");
    Settle();
    Start();
    Window().Send(kSaveDefinitionAs);
    ChooseFile(program->Id(), kSaveTitle, folder.Name("old.adx"));
    EXPECT_TRUE(Eventually([&] { return folder.Size("old.adx") > 10000; })) << Window().Output();
    CloseProgram();
    EXPECT_EQ(folder.Settings().at("lastadxpath"), folder.Name("old.adx"));
}

TEST_F(DefinitionFiles, OnceImportedAskForANameWhileTheTitleShowsTheFormer) {
    Settle();
    Start();
    Import(folder.TakeExample("kestrel-legacy.ads"));
    ExpectSaveAsksForAName();
    ExpectTitle(folder.ShortName("harrier-8192.adx"));
    Window().Send(kSpeed100);
    ExpectTitle("");
}

TEST_F(DefinitionFiles, OnceImportedAreSavedBeforeTheyAreEdited) {
    Settle();
    Start();
    Import(folder.TakeExample("kestrel-legacy.ads"));
    Window().Send(kEditDefinition);
    ChooseFile(program->Id(), kSaveTitle, folder.Name("new.adx"));
    CancelDialog(program->Id(), "Corvex Definition Editor");
    EXPECT_GT(folder.Size("new.adx"), 1000U);
    CloseProgram();
    EXPECT_EQ(folder.Settings().at("lastadxpath"), folder.Name("new.adx"));
}

TEST_F(DefinitionFiles, AskForANameAfterAFailedImportToo) {
    Settle();
    Start();
    Import(folder.Name("missing.ads"));
    ExpectOutput("FAILED to Import " + folder.Name("missing.ads"));
    ExpectSaveAsksForAName();
}

}  // namespace
}  // namespace corvex::test
