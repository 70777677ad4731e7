#include "checking/DefinitionChecker.h"

#include "checking/CheckContext.h"

namespace corvex {

std::vector<Finding> CheckDefinition(const ADXDefinition& definition, const SourceRecord* source) {
    CheckContext context(definition, source);
    CheckHeader(context);
    CheckSavedHeader(context);
    CheckIdentities(context);
    CheckCycles(context);
    for (const auto& object : definition.Objects()) {
        CheckLinks(context, *object);
        CheckCommand(context, *object);
        CheckField(context, *object);
        CheckEquation(context, *object);
        CheckTable(context, *object);
        CheckView(context, *object);
        CheckSavedTexts(context, *object);
        if (const SourcePart* source = context.SourceOf(*object)) CheckSourceText(context, object.get(), *source);
    }
    return context.TakeFindings();
}

}  // namespace corvex
