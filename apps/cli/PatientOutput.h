// Output that waits for its reader, but not for ever.
#pragma once

#include <functional>
#include <iosfwd>
#include <streambuf>
#include <string>

namespace corvex {

// What is written goes on at a flush, or when much has gathered, in pieces that a pipe takes at once. Before each the
// reader may take its time, for as long as whoever made this has patience; then all that is left is dropped and the
// stream goes bad. One thread.
class PatientOutput : public std::streambuf {
public:
    static constexpr int kLook = 50;  // milliseconds between two questions for patience

    struct Waiting {
        // As WaitForOutputRoom.
        std::function<bool(int milliseconds)> hasRoom;
        // Whether to go on, `milliseconds` after the last piece went.
        std::function<bool(int milliseconds)> goOn;
    };

    // The target outlives this.
    PatientOutput(std::ostream& target, Waiting waiting) : target_(target), waiting_(std::move(waiting)) {}

protected:
    int_type overflow(int_type character) override;
    std::streamsize xsputn(const char* text, std::streamsize count) override;
    int sync() override;

private:
    bool Send();
    bool WaitForRoom();

    std::ostream& target_;
    Waiting waiting_;
    std::string held_;
    bool failed_ = false;
};

}  // namespace corvex
