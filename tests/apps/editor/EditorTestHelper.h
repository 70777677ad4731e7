// Opens the real library by its ordinal, with somebody at its dialog.
#pragma once

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <functional>
#include <string>

#include "apps/editor/EditorResource.h"
#include "apps/editor/EntryPoint.h"
#include "definition/ADXDefinition.h"
#include "tests/support/Eventually.h"
#include "tests/support/TestFolder.h"
#include "tests/support/TextRecorder.h"
#include "tests/views/browser/DialogPerson.h"

namespace corvex::test {

inline constexpr char kEditor[] = "Corvex Definition Editor";
inline constexpr char kSaveTitle[] = "Choose file to save to...";
inline constexpr DialogLook kHeaderDialog = {kEditor, IDC_AUTHOR};
inline constexpr DialogLook kEditorBox = {kEditor, kBoxText};
inline constexpr std::size_t kPathSize = 260;

// The library and its only entry, both null when they can't be had.
class EditorLibrary {
public:
    EditorLibrary() : module_(::LoadLibraryA("ADXEditor.dll")) {}
    ~EditorLibrary() {
        if (module_ != nullptr) ::FreeLibrary(module_);
    }
    EditorLibrary(const EditorLibrary&) = delete;
    EditorLibrary& operator=(const EditorLibrary&) = delete;

    HMODULE Module() const { return module_; }
    EditorEntry Entry() const {
        return reinterpret_cast<EditorEntry>(reinterpret_cast<void*>(::GetProcAddress(module_, MAKEINTRESOURCEA(1))));
    }

private:
    HMODULE module_;
};

class EditorTest : public ::testing::Test {
protected:
    void SetUp() override { ASSERT_NE(library_.Entry(), nullptr); }

    void SetPath(const std::string& path) {
        path_.fill('\x7F');  // what is written behind the text can be seen
        path_[path.copy(path_.data(), kPathSize - 1)] = '\0';
    }
    void Edit(const std::string& name, const std::string& content) {
        folder_.Put(name, content);
        SetPath(folder_.Name(name));
    }
    // Calls the library while the acts run.
    int Run(std::function<void()> acts) {
        const DialogPerson person(std::move(acts));
        return library_.Entry()(owner_, path_.data(), &output_, 0);
    }
    // The same for acts at the dialog, once it is there.
    int RunAt(std::function<void(HWND dialog)> acts) {
        return Run([acts = std::move(acts)] {
            if (const HWND dialog = DialogPerson::Await(kHeaderDialog)) acts(dialog);
        });
    }
    std::string Path() const { return path_.data(); }

    EditorLibrary library_;
    TestFolder folder_;
    TextRecorder text_;
    DebugOutput output_;
    HWND owner_ = nullptr;
    std::array<char, kPathSize> path_{};
};

// A definition with three commands, a name that leads nowhere and a value with alarms.
inline constexpr char kSmallDefinition[] =
    "<ADXFORMAT version=\"0.50\" />\r\n<ADXHEADER><flags>0x04</flags><userversion>1.0</userversion>"
    "<author>A. Nother</author><desc>first\nsecond</desc><baud>8192</baud><connectcmd>GHOST</connectcmd>"
    "<monitorcmd>LOOP</monitorcmd></ADXHEADER>\r\n"
    "<ADXCTRIGGER id=\"BELL\" title=\"Ring the bell\"><triggertype>0x00000002</triggertype></ADXCTRIGGER>"
    "<ADXMACRO id=\"LOOP\" title=\"Loop\"><NODE commandID=\"BELL\" repeatcount=\"2\" /></ADXMACRO>"
    "<ADXVALUE id=\"RPM\" title=\"Engine speed\"><units>1/min</units><alarms low=\"1.5\" high=\"6000\" /></ADXVALUE>"
    "<ADXMACRO id=\"ENDALL\" title=\"End\"></ADXMACRO>";

}  // namespace corvex::test
