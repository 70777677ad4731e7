#include "tests/program/RunningProgram.h"

#include <tlhelp32.h>

#include <algorithm>
#include <filesystem>
#include <stdexcept>

namespace corvex::test {

RunningProgram::RunningProgram(const std::string& file, const std::string& folder) {
    std::string line;
    line.append("\"").append(file).append("\"");
    STARTUPINFOA startup = {};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION made = {};
    if (!::CreateProcessA(file.c_str(), line.data(), nullptr, nullptr, FALSE, 0, nullptr, folder.c_str(), &startup,
                          &made))
        throw std::runtime_error("can't start " + file);
    ::CloseHandle(made.hThread);
    process_ = made.hProcess;
    id_ = made.dwProcessId;
}

RunningProgram::~RunningProgram() {
    if (IsRunning()) {
        ::TerminateProcess(process_, 99);
        ::WaitForSingleObject(process_, 10000);
    }
    ::CloseHandle(process_);
}

bool RunningProgram::IsRunning() const {
    return ::WaitForSingleObject(process_, 0) == WAIT_TIMEOUT;
}

std::optional<DWORD> RunningProgram::WaitForExit(DWORD milliseconds) const {
    if (::WaitForSingleObject(process_, milliseconds) != WAIT_OBJECT_0) return std::nullopt;
    DWORD code = 0;
    ::GetExitCodeProcess(process_, &code);
    return code;
}

int CountProcessesOf(const std::string& file) {
    const std::string name = std::filesystem::path(file).filename().string();
    const HANDLE all = ::CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0);
    PROCESSENTRY32 entry = {};
    entry.dwSize = sizeof entry;
    int count = 0;
    for (BOOL more = ::Process32First(all, &entry); more; more = ::Process32Next(all, &entry))
        count += ::_stricmp(entry.szExeFile, name.c_str()) == 0 ? 1 : 0;
    ::CloseHandle(all);
    return count;
}

}  // namespace corvex::test
