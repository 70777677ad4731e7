// Makes a definition of what was read from a legacy file.
#pragma once

namespace corvex {

class ADXDefinition;
class AdsReader;

// Clears the definition and fills it. 1, or 0 for a null argument. Dashes become nothing; values and bits belong to no
// command and are decoded from every reply.
int ConvertAds(ADXDefinition* definition, const AdsReader* reader);

}  // namespace corvex
