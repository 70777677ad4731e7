// Being asked to stop by the person at the console or by the system.
#pragma once

#include <functional>
#include <memory>

namespace corvex {

// While one of these lives, Ctrl+C and a request to end (SIGTERM, SIGHUP; a closed console window on Windows) do not
// end the program: they set a flag and run the callback once, on a thread of its own, where it may lock and wait like
// any other code. A request that comes later, half a second after the first, meets the system's own handling and ends
// the program, so nobody is ever locked in. Writing to a pipe that nobody reads any more fails instead of ending the
// program.
//
// One at a time in a process. The destructor puts the handling back and waits for a callback that is running.
class ConsoleStop {
public:
    explicit ConsoleStop(std::function<void()> callback = {});
    ~ConsoleStop();
    ConsoleStop(const ConsoleStop&) = delete;
    ConsoleStop& operator=(const ConsoleStop&) = delete;

    // True once a stop was asked for. Any thread.
    bool Requested() const;

private:
    struct State;
    std::unique_ptr<State> state_;
};

}  // namespace corvex
