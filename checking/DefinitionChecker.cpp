#include "checking/DefinitionChecker.h"

#include "checking/CheckContext.h"

namespace corvex {

std::vector<Finding> CheckDefinition(const ADXDefinition& definition, const FileFacts* facts) {
    CheckContext context(definition, facts);
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
        CheckFileText(context, *object);
    }
    return context.TakeFindings();
}

}  // namespace corvex
