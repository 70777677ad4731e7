// The library from outside: one ordinal, no name, and a contract that holds however it is called.
#include <gtest/gtest.h>

#include <string>

#include "CorvexVersion.h"
#include "platform/VersionBlock.h"
#include "tests/apps/editor/EditorTestHelper.h"

namespace corvex::test {
namespace {

TEST(LibraryTest, IsReachedByOrdinalOneAlone) {
    const EditorLibrary library;
    ASSERT_NE(library.Module(), nullptr);
    EXPECT_NE(library.Entry(), nullptr);
    EXPECT_EQ(::GetProcAddress(library.Module(), MAKEINTRESOURCEA(2)), nullptr);
    EXPECT_EQ(::GetProcAddress(library.Module(), "EditDefinition"), nullptr);
    EXPECT_EQ(::GetProcAddress(library.Module(), "_EditDefinition"), nullptr);

    const auto* const image = reinterpret_cast<const char*>(library.Module());
    const auto& dos = *reinterpret_cast<const IMAGE_DOS_HEADER*>(image);
    const auto& headers = *reinterpret_cast<const IMAGE_NT_HEADERS*>(image + dos.e_lfanew);
    const DWORD place = headers.OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_EXPORT].VirtualAddress;
    const auto& exports = *reinterpret_cast<const IMAGE_EXPORT_DIRECTORY*>(image + place);
    EXPECT_EQ(exports.Base, 1U);
    EXPECT_EQ(exports.NumberOfFunctions, 1U);
    EXPECT_EQ(exports.NumberOfNames, 0U);
}

TEST(LibraryTest, BearsTheVersionOfTheProject) {
    const EditorLibrary library;
    char path[MAX_PATH] = {};
    ::GetModuleFileNameA(library.Module(), path, sizeof path);
    VersionBlock block;
    ASSERT_TRUE(ReadVersionBlock(path, block)) << path;
    const std::string version = std::to_string(block.fileVersionMS >> 16)
                                    .append(".")
                                    .append(std::to_string(block.fileVersionMS & 0xFFFF))
                                    .append(".")
                                    .append(std::to_string(block.fileVersionLS >> 16));
    EXPECT_EQ(version, CORVEX_VERSION);
}

TEST_F(EditorTest, ANullPathIsNothingToEdit) {
    EXPECT_EQ(library_.Entry()(nullptr, nullptr, nullptr, 0), 0);
}

TEST_F(EditorTest, ASecondCallWhileItIsOpenIsRefused) {
    Edit("one.adx", kSmallDefinition);
    std::array<char, kPathSize> other{};
    int second = -1;
    EXPECT_EQ(RunAt([&](HWND dialog) {
                  second = library_.Entry()(nullptr, other.data(), nullptr, 0);
                  DialogPerson::Press(dialog, IDOK);
              }),
              1);
    EXPECT_EQ(second, 0);
    // A call that was refused has not opened the way for another one, and one that is over has.
    EXPECT_EQ(RunAt([&](HWND dialog) {
                  second = library_.Entry()(nullptr, other.data(), nullptr, 0);
                  second += library_.Entry()(nullptr, other.data(), nullptr, 0);
                  DialogPerson::Press(dialog, IDCANCEL);
              }),
              0);
    EXPECT_EQ(second, 0);
}

TEST_F(EditorTest, TellsTheProgramsLogWhatWasSaved) {
    output_.edit = &text_;
    Edit("one.adx", kSmallDefinition);
    EXPECT_EQ(RunAt([](HWND dialog) { DialogPerson::Press(dialog, IDCANCEL); }), 0);
    EXPECT_EQ(text_.Text(), "");
    EXPECT_EQ(RunAt([](HWND dialog) { DialogPerson::Press(dialog, IDOK); }), 1);
    EXPECT_EQ(text_.Text(), std::string("Editor: saved ").append(folder_.Name("one.adx")));
}

LRESULT CALLBACK DestroyedOnRequest(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_APP) return ::DestroyWindow(window);
    return ::DefWindowProcA(window, message, wParam, lParam);
}

// The program's window goes when its stop thread has ended, whatever is open above it.
TEST_F(EditorTest, IsModalOnItsOwnerAndEndsWithIt) {
    owner_ = ::CreateWindowExA(0, "Static", "owner", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 600, 500, nullptr, nullptr,
                               nullptr, nullptr);
    ::SetWindowLongPtrA(owner_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&DestroyedOnRequest));
    Edit("one.adx", kSmallDefinition);
    BOOL enabled = TRUE;
    HWND over = nullptr;
    RunAt([&](HWND dialog) {
        enabled = ::IsWindowEnabled(owner_);
        over = ::GetWindow(dialog, GW_OWNER);
        DialogPerson::Press(dialog, IDCANCEL);
    });
    EXPECT_FALSE(enabled);
    EXPECT_EQ(over, owner_);
    EXPECT_TRUE(::IsWindowEnabled(owner_));
    EXPECT_EQ(RunAt([&](HWND) { ::PostMessageA(owner_, WM_APP, 0, 0); }), 0);
    EXPECT_FALSE(::IsWindow(owner_));
    EXPECT_EQ(folder_.Content("one.adx"), kSmallDefinition);
    owner_ = nullptr;
    EXPECT_EQ(RunAt([](HWND dialog) { DialogPerson::Press(dialog, IDOK); }), 1);
}

}  // namespace
}  // namespace corvex::test
