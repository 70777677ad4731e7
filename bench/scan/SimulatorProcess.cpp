#include "bench/scan/SimulatorProcess.h"

#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>

namespace corvex {

SimulatorProcess::SimulatorProcess(const std::string& program, const std::vector<std::string>& arguments) {
    std::vector<char*> argv{const_cast<char*>(program.c_str())};
    for (const std::string& argument : arguments)
        argv.push_back(const_cast<char*>(argument.c_str()));
    argv.push_back(nullptr);

    std::array<int, 2> pipe{};
    if (::pipe(pipe.data()) != 0) return;
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, pipe[1], STDOUT_FILENO);
    posix_spawn_file_actions_addclose(&actions, pipe[0]);
    posix_spawn_file_actions_addclose(&actions, pipe[1]);
    if (posix_spawn(&process_, program.c_str(), &actions, nullptr, argv.data(), environ) != 0) process_ = -1;
    posix_spawn_file_actions_destroy(&actions);
    close(pipe[1]);
    // The first line is the port's name.
    for (char c = 0; read(pipe[0], &c, 1) == 1 && c != '\n';)
        port_ += c;
    close(pipe[0]);
}

SimulatorProcess::~SimulatorProcess() {
    Stop();
}

void SimulatorProcess::Stop() {
    if (process_ <= 0) return;
    kill(process_, SIGINT);
    waitpid(process_, nullptr, 0);
    process_ = -1;
}

}  // namespace corvex
