#include <string>

#include "checking/CheckContext.h"
#include "export/text/TextFormat.h"

namespace corvex {

namespace {

void WarnOfCut(CheckContext& context, const ADXObject* object, std::uint32_t line, const std::string& what) {
    context.Warn(object, "cut-text", Printf("the text of %s is too long and is cut on reading", what.c_str()));
    context.Place(line);
}

void CheckCuts(CheckContext& context, const ADXObject* object, const SourceElement& element) {
    const std::string name = Printf("<%s>", DisplayText(element.name).c_str());
    if (element.textcut) WarnOfCut(context, object, element.line, name);
    if (element.attributecut) WarnOfCut(context, object, element.line, "an attribute of " + name);
}

}  // namespace

void CheckSourceText(CheckContext& context, const ADXObject* object, const SourcePart& source) {
    for (const SourceElement& child : source.children) {
        if (!child.ignored) continue;
        context.Note(object, "unknown-name",
                     Printf("<%s> means nothing here and is ignored", DisplayText(child.name).c_str()));
        context.Place(child.line);
    }
    if (source.start.attributecut)
        WarnOfCut(context, object, source.start.line, "an attribute of <" + source.start.name + ">");
    for (const SourceElement& child : source.children)
        CheckCuts(context, object, child);
}

}  // namespace corvex
