// Lines on a terminal that are drawn anew in the same place.
#pragma once

#include <cstddef>
#include <iosfwd>
#include <string>
#include <vector>

namespace corvex {

// Hides the cursor while it lives. Without escape sequences each drawing follows the one before.
class ScreenLines {
public:
    ScreenLines(std::ostream& out, bool escapes);
    ~ScreenLines();
    ScreenLines(const ScreenLines&) = delete;
    ScreenLines& operator=(const ScreenLines&) = delete;

    // No line may be wider than the screen, and all must fit on it. The cursor is left behind the last.
    void Show(const std::vector<std::string>& lines);

private:
    std::ostream& out_;
    const bool escapes_;
    std::size_t shown_ = 0;
};

}  // namespace corvex
