// Makes definition objects of legacy items.
#pragma once

namespace corvex {

class ADXDefinition;
class AdsReader;

// Appends an object for each table, value and bit of the reader that is no separator, tables first, so that values find
// theirs; then, when there are values or bits, an item list of the first 255 of them.
void ConvertItems(ADXDefinition& definition, const AdsReader& reader);

}  // namespace corvex
