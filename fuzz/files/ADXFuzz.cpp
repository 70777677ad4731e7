// Any bytes as a definition file; what was read is computed, saved, and read again.
#include "fuzz/files/DefinitionExerciser.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    corvex::ADXDefinition definition;
    corvex::LoadDefinition(data, size, definition);
    corvex::ExerciseDefinition(definition);
    const std::string saved = corvex::SaveDefinition(definition, 1 << 16);
    corvex::ADXDefinition again;
    corvex::LoadDefinition(saved.data(), saved.size(), again);
    corvex::ExerciseDefinition(again);
    return 0;
}
