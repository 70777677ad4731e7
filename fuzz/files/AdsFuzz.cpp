// Any bytes as a legacy definition; what was converted is computed, and for some inputs saved and read again: that is
// nine tenths of the work, and fuzz_adx does nothing else.
#include "files/ads/AdsConverter.h"
#include "files/ads/AdsReader.h"
#include "fuzz/LongWay.h"
#include "fuzz/files/DefinitionExerciser.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    corvex::AdsReader reader;
    if (reader.ReadMemory(data, size) != 1) std::abort();
    corvex::ADXDefinition definition;
    if (corvex::ConvertAds(&definition, &reader) != 1) std::abort();
    if (!corvex::TakesLongWay(data, size, 64)) return 0;
    corvex::ExerciseDefinition(definition);
    const std::string saved = corvex::SaveDefinition(definition, 1 << 16);
    corvex::ADXDefinition again;
    corvex::LoadDefinition(saved.data(), saved.size(), again);
    corvex::ExerciseDefinition(again);
    return 0;
}
