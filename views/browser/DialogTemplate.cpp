#include "views/browser/DialogTemplate.h"

namespace corvex {

namespace {
constexpr std::size_t kCountOfItems = 4;  // behind style and extended style
}

DialogTemplate::DialogTemplate(DWORD style, Place place, std::wstring_view title, WORD fontSize,
                               std::wstring_view font) {
    Double(style | DS_SETFONT);
    Double(0);
    Word(0);
    Rectangle(place);
    Word(0);  // no menu
    Word(0);  // the class of dialogs
    Text(title);
    Word(fontSize);
    Text(font);
}

void DialogTemplate::Add(WORD id, DWORD style, Place place, std::wstring_view controlClass, std::wstring_view text) {
    if (units_.size() % 2 != 0) Word(0);  // each item begins at a double word
    Double(style | WS_CHILD | WS_VISIBLE);
    Double(0);
    Rectangle(place);
    Word(id);
    Text(controlClass);
    Text(text);
    Word(0);  // no data
    ++units_[kCountOfItems];
}

void DialogTemplate::Double(DWORD value) {
    Word(value & 0xFFFF);
    Word(value >> 16);
}

void DialogTemplate::Rectangle(Place place) {
    for (const short value : {place.x, place.y, place.width, place.height})
        Word(static_cast<std::uint16_t>(value));
}

void DialogTemplate::Text(std::wstring_view text) {
    for (const wchar_t character : text)
        Word(character);
    Word(0);
}

}  // namespace corvex
