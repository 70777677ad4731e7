#include "tools/driver/RunningProgram.h"

#include <tlhelp32.h>

#include <array>
#include <stdexcept>

namespace corvex::test {

namespace {

bool Runs(DWORD process, const std::string& file) {
    const HANDLE handle = ::OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, process);
    if (handle == nullptr) return false;
    std::array<char, 1024> name = {};
    DWORD size = static_cast<DWORD>(name.size());
    const bool runs =
        ::QueryFullProcessImageNameA(handle, 0, name.data(), &size) && ::_stricmp(name.data(), file.c_str()) == 0;
    ::CloseHandle(handle);
    return runs;
}

}  // namespace

RunningProgram::RunningProgram(const std::string& file, const std::string& folder, const std::string& desktop) {
    std::string line;
    line.append("\"").append(file).append("\"");
    STARTUPINFOA startup = {};
    startup.cb = sizeof startup;
    std::string place = desktop;
    if (!place.empty()) startup.lpDesktop = place.data();
    PROCESS_INFORMATION made = {};
    if (!::CreateProcessA(file.c_str(), line.data(), nullptr, nullptr, FALSE, 0, nullptr, folder.c_str(), &startup,
                          &made))
        throw std::runtime_error("can't start " + file + ", error " + std::to_string(::GetLastError()));
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
    const HANDLE all = ::CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0);
    PROCESSENTRY32 entry = {};
    entry.dwSize = sizeof entry;
    int count = 0;
    for (BOOL more = ::Process32First(all, &entry); more; more = ::Process32Next(all, &entry))
        count += Runs(entry.th32ProcessID, file) ? 1 : 0;
    ::CloseHandle(all);
    return count;
}

}  // namespace corvex::test
