// pty_peer --link PATH -- PROGRAM [ARGS]
//
// The far end of a serial line for the port tests. Opens a pseudo-terminal, publishes it as the symbolic link PATH,
// runs the program, and returns its status. What comes in is read as text lines; each is an order:
//   ping N            answers "pong N" and a line end
//   send COUNT MS     bytes 1, 2, 3, ... , one each MS milliseconds (0: in one piece)
//   split A MS B      A bytes, a pause, B bytes
//   deaf MS           reads nothing for that time
//   vanish            the line goes away; a new one is published in its place
// Anything else is ignored. The tests own the times: this program keeps them by absolute deadlines.
#include <fcntl.h>
#include <poll.h>
#include <sys/wait.h>
#include <termios.h>
#include <unistd.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <sstream>
#include <string>

#include "platform/Clock.h"

namespace {

class Line {
public:
    explicit Line(std::string link) : link_(std::move(link)) { Publish(); }
    ~Line() {
        Drop();
        unlink(link_.c_str());
    }
    Line(const Line&) = delete;
    Line& operator=(const Line&) = delete;

    int Master() const { return master_; }

    void Replace() {
        Drop();
        Publish();
    }

    void Send(const std::string& bytes) const {
        std::size_t sent = 0;
        while (sent < bytes.size()) {
            const ssize_t moved = write(master_, bytes.data() + sent, bytes.size() - sent);
            if (moved <= 0) return;
            sent += static_cast<std::size_t>(moved);
        }
    }

private:
    void Publish() {
        master_ = posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC);
        if (master_ < 0 || grantpt(master_) != 0 || unlockpt(master_) != 0) Die("no pseudo-terminal");
        const char* name = ptsname(master_);
        // Kept open: the master would hear of a hang-up whenever the program has the port closed.
        slave_ = open(name, O_RDWR | O_NOCTTY | O_CLOEXEC);
        termios raw{};
        if (slave_ < 0 || tcgetattr(slave_, &raw) != 0) Die("no slave side");
        cfmakeraw(&raw);
        tcsetattr(slave_, TCSANOW, &raw);
        const std::string fresh = link_ + ".new";
        unlink(fresh.c_str());
        if (symlink(name, fresh.c_str()) != 0 || rename(fresh.c_str(), link_.c_str()) != 0) Die("no link");
    }

    void Drop() {
        close(slave_);
        close(master_);
    }

    [[noreturn]] static void Die(const char* why) {
        std::fprintf(stderr, "pty_peer: %s: %s\n", why, std::strerror(errno));
        std::exit(3);
    }

    std::string link_;
    int master_ = -1, slave_ = -1;
};

std::int64_t After(std::int64_t start, std::int64_t milliseconds) {
    return start + milliseconds * corvex::SystemClock().Frequency() / 1000;
}

std::string Numbered(int first, int count) {
    std::string bytes;
    for (int i = 0; i < count; ++i)
        bytes += static_cast<char>((first + i) & 0xFF);
    return bytes;
}

void SendSpaced(const Line& line, int count, int milliseconds) {
    if (milliseconds == 0) {
        line.Send(Numbered(1, count));
        return;
    }
    const std::int64_t start = corvex::SystemClock().Counter();
    for (int i = 0; i < count; ++i) {
        corvex::SleepUntil(After(start, std::int64_t{i} * milliseconds));
        line.Send(Numbered(1 + i, 1));
    }
}

void Obey(Line& line, const std::string& order) {
    std::istringstream words(order);
    std::string verb;
    int a = 0, b = 0, c = 0;
    words >> verb >> a >> b >> c;
    if (verb == "ping") line.Send("pong " + std::to_string(a) + "\n");
    if (verb == "send") SendSpaced(line, a, b);
    if (verb == "split") {
        const std::int64_t start = corvex::SystemClock().Counter();
        line.Send(Numbered(1, a));
        corvex::SleepUntil(After(start, b));
        line.Send(Numbered(1 + a, c));
    }
    if (verb == "deaf") corvex::SleepUntil(After(corvex::SystemClock().Counter(), a));
    if (verb == "vanish") line.Replace();
}

void ReadOrders(Line& line, std::string& pending) {
    char bytes[4096];
    const ssize_t moved = read(line.Master(), bytes, sizeof bytes);
    if (moved <= 0) return;
    pending.append(bytes, static_cast<std::size_t>(moved));
    for (std::size_t end = pending.find('\n'); end != std::string::npos; end = pending.find('\n')) {
        const std::string order = pending.substr(0, end);
        pending.erase(0, end + 1);
        Obey(line, order);
    }
}

int RunBeside(Line& line, char** program) {
    const pid_t child = fork();
    if (child == 0) {
        execvp(program[0], program);
        std::perror(program[0]);
        _exit(127);
    }
    std::string pending;
    int status = 0;
    while (waitpid(child, &status, WNOHANG) == 0) {
        pollfd entry{line.Master(), POLLIN, 0};
        if (poll(&entry, 1, 20) > 0) ReadOrders(line, pending);
    }
    return WIFEXITED(status) ? WEXITSTATUS(status) : 4;
}

}  // namespace

int main(int count, char** arguments) {
    if (count < 5 || std::strcmp(arguments[1], "--link") != 0 || std::strcmp(arguments[3], "--") != 0) {
        std::fprintf(stderr, "usage: pty_peer --link PATH -- PROGRAM [ARGS]\n");
        return 2;
    }
    Line line(arguments[2]);
    return RunBeside(line, arguments + 4);
}
