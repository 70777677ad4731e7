#include "checking/CheckContext.h"
#include "export/text/TextFormat.h"

namespace corvex {

void CheckFileText(CheckContext& context, const ADXObject& object) {
    const FileFacts::Object* facts = context.FactsOf(object);
    if (facts == nullptr) return;
    for (const std::string& name : facts->unknown)
        context.Note(&object, "unknown-name",
                     Printf("%s means nothing here and is ignored", DisplayText(name).c_str()));
    for (const std::string& name : facts->toolong)
        context.Warn(&object, "cut-text",
                     Printf("the text of %s is too long and is cut on reading", DisplayText(name).c_str()));
}

}  // namespace corvex
