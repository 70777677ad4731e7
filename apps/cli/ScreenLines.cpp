#include "apps/cli/ScreenLines.h"

#include <ostream>

#include "export/text/TextFormat.h"

namespace corvex {

ScreenLines::ScreenLines(std::ostream& out, bool escapes) : out_(out), escapes_(escapes) {
    if (escapes_) out_ << "\x1b[?25l";
}

ScreenLines::~ScreenLines() {
    if (escapes_) out_ << "\x1b[?25h" << std::flush;
}

void ScreenLines::Show(const std::vector<std::string>& lines) {
    // One write for the whole picture, so that a slow terminal never shows half of one.
    std::string text;
    if (escapes_ && shown_ != 0) text = Printf("\x1b[%uA\r", static_cast<unsigned>(shown_));
    for (const std::string& line : lines)
        text += line + (escapes_ ? "\x1b[K\n" : "\n");
    // A picture that has become shorter leaves nothing of the old one behind.
    if (escapes_) text += "\x1b[J";
    out_ << text << std::flush;
    shown_ = lines.size();
}

}  // namespace corvex
