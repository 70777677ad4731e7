#include "tools/driver/ProgramFolder.h"

#include <array>
#include <sstream>

#include "platform/WindowsApi.h"

namespace corvex::test {

ProgramFolder::ProgramFolder() {
    for (const char* file : {"Corvex.exe", "ADXEditor.dll"})
        std::filesystem::copy_file(BuiltFile(file), Name(file));
}

std::string ProgramFolder::TakeExample(const std::string& name) const {
    const std::filesystem::path original = std::filesystem::path(CORVEX_SOURCE_DIR) / "examples" / name;
    std::filesystem::copy_file(original, Name(name), std::filesystem::copy_options::overwrite_existing);
    return Name(name);
}

std::string ProgramFolder::ShortName(const std::string& file) const {
    return (folder_.Path().filename() / file).string();
}

std::uintmax_t ProgramFolder::Size(const std::string& file) const {
    std::error_code none;
    const std::uintmax_t size = std::filesystem::file_size(Name(file), none);
    return none ? 0 : size;
}

void ProgramFolder::PutSettings(const std::map<std::string, std::string>& values) const {
    std::string text;
    for (const auto& [key, value] : values)
        text.append(key).append("=").append(value).append("\r\n");
    folder_.Put("Settings.dat", text);
}

std::map<std::string, std::string> ProgramFolder::Settings() const {
    std::map<std::string, std::string> values;
    std::istringstream text(folder_.Content("Settings.dat"));
    for (std::string line; std::getline(text, line);) {
        if (!line.empty() && line.back() == '\r') line.pop_back();
        const std::size_t mark = line.find('=');
        if (mark != std::string::npos) values[line.substr(0, mark)] = line.substr(mark + 1);
    }
    return values;
}

std::string BuiltFile(const std::string& name) {
    std::array<char, MAX_PATH> self = {};
    ::GetModuleFileNameA(nullptr, self.data(), static_cast<DWORD>(self.size()));
    return (std::filesystem::path(self.data()).parent_path() / name).string();
}

}  // namespace corvex::test
