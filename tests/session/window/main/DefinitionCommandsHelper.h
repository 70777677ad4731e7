// The main window with commands for its definition, and an editor that only writes down what it is asked for.
#pragma once

#include <functional>

#include "session/window/DefinitionCommands.h"
#include "tests/session/window/main/MainWindowHelper.h"

namespace corvex::test {

class DefinitionCommandsTest : public MainWindowTest {
protected:
    void Load(const std::string& path) { commands().LoadDefinition(path); }
    DefinitionCommands& commands() {
        if (!commands_) commands_.emplace(desktop);
        return *commands_;
    }
    // Leaves `one.adx` on the disk and a part of another in memory.
    void LoadBroken() {
        folder.Put("broken.adx", "<ADXFORMAT version=\"0.50\" />\n<ADXVALUE id=\"a\" id></>");
        Load(folder.Name("broken.adx"));
    }
    void Import() { commands().ImportDefinition(std::string(CORVEX_SOURCE_DIR) + "/examples/kestrel-legacy.ads"); }
    std::string Path() const { return session.settings.lastadxpath; }
    bool LoadsWithin(const std::string& path) {
        return Pumps([&] { return Says("Loaded " + path); });
    }
    // Save, and what else has no name to go by.
    void ExpectAsksForAName(unsigned command) {
        DialogAnswer answer("Choose file to save to...", IDCANCEL);
        Command(command);
        EXPECT_TRUE(answer.Came());
    }
    // In place of the editor's library: writes down what it was called with, and may say that it saved.
    void UseEditor(int answer = 0) {
        edited.clear();
        editorAnswer = answer;
        session.editorEntry = reinterpret_cast<void (*)()>(&Edit);
    }
    static int __cdecl Edit(HWND, char* path, DebugOutput*, std::uintptr_t) {
        edited.emplace_back(path);
        return editorAnswer;
    }
    static inline std::vector<std::string> edited;
    static inline int editorAnswer = 0;
    void TearDown() override {
        // Their timer is the window's.
        commands_.reset();
    }

private:
    std::optional<DefinitionCommands> commands_;
};

}  // namespace corvex::test
