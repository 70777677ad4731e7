// A folder of a test's own with the program in it, as a user would have unpacked it.
#pragma once

#include <cstdint>
#include <map>
#include <string>

#include "tests/support/TestFolder.h"

namespace corvex::test {

// Copies Corvex.exe and ADXEditor.dll from where the test program lies. Gone when the test ends.
class ProgramFolder {
public:
    ProgramFolder();

    const TestFolder& Files() const { return folder_; }
    std::string Name(const std::string& file) const { return folder_.Name(file); }
    std::string Path() const { return folder_.Path().string(); }
    std::string Program() const { return Name("Corvex.exe"); }

    // Puts a copy of an example into the folder, so that no test ever writes over the example itself. Its path.
    std::string TakeExample(const std::string& name) const;
    // The folder's own name and a file in it, as the title shows a path.
    std::string ShortName(const std::string& file) const;

    // Bytes; 0 when there is no such file. Opens nothing, so that it never stands in the way of who writes there.
    std::uintmax_t Size(const std::string& file) const;

    // Settings.dat with these lines and no others.
    void PutSettings(const std::map<std::string, std::string>& values) const;
    // Its lines by key; none when there is no file.
    std::map<std::string, std::string> Settings() const;

private:
    TestFolder folder_;
};

// The folder of the test program itself, where everything that is built lies.
std::string BuiltFile(const std::string& name);
}  // namespace corvex::test
