#include <string>

#include "checking/CheckContext.h"
#include "checking/EquationFacts.h"
#include "definition/ADXValue.h"
#include "export/text/ObjectNames.h"
#include "export/text/TextFormat.h"

namespace corvex {

namespace {

void CheckVars(CheckContext& context, const ADXValue& value) {
    std::string natives;
    for (const ADXVar& var : value.Vars()) {
        if (!var.IsLink() && natives.find(var.varid) == std::string::npos) natives += var.varid;
    }
    if (natives.size() > 1)
        context.Warn(&value, "two-natives",
                     Printf("the letters %s all read the value's own field; is a link missing?", natives.c_str()));
    const SourcePart* source = context.SourceOf(value);
    if (source == nullptr) return;
    const SourceElement* math = source->Last("MATH");
    const std::string_view equation = math == nullptr ? "" : math->Attribute("equation");
    for (const SourceElement& child : source->children) {
        const std::string_view letter = child.Is("VAR") ? child.Attribute("varID").substr(0, 1) : "";
        if (equation.find(letter) == std::string_view::npos)
            context.Warn(&value, "unused-var",
                         Printf("has a VAR for %c, which its equation does not mention", letter.front()));
    }
}

}  // namespace

void CheckEquation(CheckContext& context, const ADXObject& object) {
    const auto* value = As<ADXValue>(&object);
    if (value == nullptr) return;
    const EquationFacts facts = StudyEquation(WholeEquation(*value));
    const std::string quoted = "equation \"" + DisplayText(facts.text) + "\" ";
    if (facts.text.empty()) {
        context.Error(&object, "no-equation", "has no equation: it always reads 0");
        return;
    }
    if (!facts.parseproblem.empty()) {
        context.Error(&object, "equation", quoted + "does not parse: " + facts.parseproblem + "; it always reads 0");
        return;
    }
    for (const char letter : facts.repeated) {
        context.Error(&object, "letter-twice",
                      quoted + Printf("uses the letter %c more than once, so each use of it reads 0", letter));
    }
    if (!facts.fused.empty())
        context.Warn(
            &object, "fused-letters",
            quoted + Printf("has \"%s\": a letter's number is joined to its neighbours as text", facts.fused.c_str()));
    if (!facts.runproblem.empty()) context.Error(&object, "equation", quoted + facts.runproblem);
    if (facts.letters == 0) context.Note(&object, "constant", quoted + "mentions no letter: it is always the same");
    if (facts.caret)
        context.Note(&object, "caret", quoted + "has a caret, which is exclusive or; a power is written #");
    CheckVars(context, *value);
}

}  // namespace corvex
