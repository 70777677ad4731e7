#include "platform/RunningProcess.h"
#include "platform/WindowsApi.h"

namespace corvex {

bool ProcessRuns(std::uint32_t id) {
    const HANDLE process = OpenProcess(SYNCHRONIZE, FALSE, id);
    if (process == nullptr) return GetLastError() != ERROR_INVALID_PARAMETER;
    const bool runs = WaitForSingleObject(process, 0) != WAIT_OBJECT_0;
    CloseHandle(process);
    return runs;
}

}  // namespace corvex
