#include "tests/support/PeerProcess.h"

#include <signal.h>
#include <sys/mman.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>

namespace corvex::test {

namespace {

[[noreturn]] void Die(const char* why) {
    std::perror(why);
    std::abort();
}

void SetFileLimit(rlim_t bytes) {
    rlimit limit{};
    if (getrlimit(RLIMIT_FSIZE, &limit) != 0) Die("getrlimit");
    limit.rlim_cur = bytes;
    if (setrlimit(RLIMIT_FSIZE, &limit) != 0) Die("setrlimit");
}

}  // namespace

PeerProcess::PeerProcess(const std::function<int()>& work) : id_(fork()) {
    if (id_ < 0) Die("fork");
    if (id_ == 0) _exit(work());
}

PeerProcess::~PeerProcess() {
    static_cast<void>(Kill());
}

bool PeerProcess::Kill() {
    if (id_ <= 0) return false;
    kill(id_, SIGKILL);
    return Wait() == -1;
}

int PeerProcess::Wait() {
    int status = 0;
    if (id_ <= 0 || waitpid(id_, &status, 0) != id_) return -1;
    id_ = 0;
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

void* MapShared(std::size_t size) {
    void* const memory = mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    if (memory == MAP_FAILED) Die("mmap");
    return memory;
}

void UnmapShared(void* memory, std::size_t size) {
    munmap(memory, size);
}

FileSizeLimit::FileSizeLimit(std::uint64_t bytes) {
    signal(SIGXFSZ, SIG_IGN);
    SetFileLimit(static_cast<rlim_t>(bytes));
}

FileSizeLimit::~FileSizeLimit() {
    rlimit limit{};
    if (getrlimit(RLIMIT_FSIZE, &limit) != 0) Die("getrlimit");
    SetFileLimit(limit.rlim_max);
}

}  // namespace corvex::test
