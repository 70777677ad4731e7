// A file that takes another's place only when it is whole.
#pragma once

#include <string>

namespace corvex {

// Reserves a name beside `path`; whoever writes the content makes the file. What was written goes with the object
// unless it was moved into place. What a killed process left beside `path` goes too, but for a log with records. One
// thread.
class AtomicReplace {
public:
    explicit AtomicReplace(const std::string& path);
    ~AtomicReplace();
    AtomicReplace(const AtomicReplace&) = delete;
    AtomicReplace& operator=(const AtomicReplace&) = delete;

    // Empty when there can be no file to take the place of `path`: a device, a pipe, a folder.
    const std::string& Name() const { return name_; }
    // The file is closed by now. False: what stood there still stands.
    [[nodiscard]] bool MoveIntoPlace();

private:
    const std::string path_;
    const std::string name_;
    bool done_ = false;
};

}  // namespace corvex
