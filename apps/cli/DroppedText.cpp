#include "apps/cli/DroppedText.h"

#include <algorithm>
#include <cstdio>
#include <memory>
#include <string_view>
#include <vector>

#include "checking/SourceRecord.h"
#include "definition/ADXDefinition.h"
#include "export/text/TextFormat.h"
#include "platform/FileReplacement.h"
#include "platform/FileStream.h"

namespace corvex {

namespace {

constexpr std::size_t kNamesShown = 8;

struct FileCloser {
    void operator()(std::FILE* file) const { std::fclose(file); }
};

// Without the zeros of 16-bit characters. What can be read only once has been read.
std::string NarrowTextOf(const std::string& path) {
    std::string text;
    const std::unique_ptr<std::FILE, FileCloser> file(IsDeviceOrPipe(path) ? nullptr : OpenToRead(path.c_str()));
    char block[4096];
    for (std::size_t count = 1; file && count != 0;) {
        count = std::fread(block, 1, sizeof block, file.get());
        std::copy_if(block, block + count, std::back_inserter(text), [](char c) { return c != '\0'; });
    }
    return text;
}

std::size_t CountComments(std::string_view text) {
    constexpr std::string_view kBegin = "<!--";
    std::size_t count = 0;
    for (std::size_t at = text.find(kBegin); at != text.npos; at = text.find(kBegin, at)) {
        at += kBegin.size();
        if (!text.substr(at).starts_with(" Written ")) ++count;
        at = std::min(text.find("-->", at), text.size());
    }
    return count;
}

class IgnoredElements {
public:
    void Add(const SourcePart& part) {
        for (const SourceElement& child : part.children) {
            if (!child.ignored) continue;
            ++count_;
            const std::string name = '<' + DisplayText(child.name) + '>';
            if (std::ranges::count(names_, name) == 0 && names_.size() <= kNamesShown) names_.push_back(name);
        }
    }

    std::string Text() const {
        if (count_ == 0) return {};
        std::string text =
            Counted(count_, "element") + (count_ == 1 ? " that means nothing: " : " that mean nothing: ");
        for (std::size_t i = 0; i < std::min(names_.size(), kNamesShown); ++i)
            text += (i == 0 ? "" : ", ") + names_[i];
        return names_.size() > kNamesShown ? text + " and others" : text;
    }

private:
    std::size_t count_ = 0;
    std::vector<std::string> names_;
};

}  // namespace

std::string DroppedText(const std::string& path, const ADXDefinition& definition, const SourceRecord& source) {
    IgnoredElements ignored;
    ignored.Add(source.Header());
    for (const auto& object : definition.Objects()) {
        if (const SourcePart* const part = source.Find(*object)) ignored.Add(*part);
    }
    const std::size_t comments = CountComments(NarrowTextOf(path));
    std::string elements = ignored.Text();
    if (comments == 0) return elements;
    return Counted(comments, "comment") + (elements.empty() ? "" : " and " + elements);
}

}  // namespace corvex
