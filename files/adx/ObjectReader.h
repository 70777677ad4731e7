// How each kind of object is read from its element: one table of kinds, and for each kind a table from the names of its
// child elements to the members they fill.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string_view>

#include "definition/ADXObject.h"
#include "files/adx/ADXElement.h"

namespace corvex {

// What a reader must remember between the children of one object.
struct ReadPosition {
    std::uint32_t row = 0;  // the next row of an item list
};

// Makes the object from its start tag.
using ObjectMaker = std::unique_ptr<ADXObject> (*)(const ADXElement& start);
// Takes one child element; false for a name that it does not know and ignores. The object is of the kind that the
// reader belongs to.
using ChildReader = bool (*)(ADXObject& object, const ADXElement& child, ReadPosition& position);

struct ObjectKind {
    std::string_view element;
    ObjectMaker make;
    ChildReader readChild;
};

// One child element of an object of class T.
template <class T>
struct ChildField {
    std::string_view name;
    void (*read)(T& object, const ADXElement& child);
};

template <class T, std::size_t N>
bool ReadField(const ChildField<T> (&fields)[N], ADXObject& object, const ADXElement& child) {
    for (const ChildField<T>& field : fields) {
        if (!child.Is(field.name)) continue;
        field.read(static_cast<T&>(object), child);
        return true;
    }
    return false;
}

// For an element that is written for other readers of the file: what it says follows from the rest.
template <class T>
void ReadNothing(T&, const ADXElement&) {}

// Fillers for members that are plain words; narrow members take the low bits.
template <auto Member, class T>
void HexInto(T& object, const ADXElement& child) {
    object.*Member = child.Hex();
}
template <auto Member, class T>
void DecInto(T& object, const ADXElement& child) {
    object.*Member = static_cast<std::remove_reference_t<decltype(object.*Member)>>(child.Dec());
}

// "id" and "title". The stored hash of a file is never read: it follows from the id.
void ReadIdAndTitle(ADXObject& object, const ADXElement& start);

// Items and views: "baseflags" as well.
template <class T>
std::unique_ptr<ADXObject> MakeItem(const ADXElement& start) {
    auto object = std::make_unique<T>();
    ReadIdAndTitle(*object, start);
    std::uint32_t baseflags = 0;
    start.ReadHex("baseflags", baseflags);
    object->SetBaseFlags(baseflags);
    return object;
}

// Commands: "baseflags" is written on them and not read.
template <class T>
std::unique_ptr<ADXObject> MakeCommand(const ADXElement& start) {
    auto object = std::make_unique<T>();
    ReadIdAndTitle(*object, start);
    return object;
}
template <class T>
std::unique_ptr<ADXObject> MakeCommandWithFlags(const ADXElement& start) {
    auto object = std::make_unique<T>();
    ReadIdAndTitle(*object, start);
    start.ReadHex("flags", object->flags);
    return object;
}

template <class T>
void ReadDesc(T& object, const ADXElement& child) {
    object.SetDesc(child.Text().data(), static_cast<std::uint32_t>(child.Text().size()));
}

// The readers of ValueReader, BitmaskReader, LookupTableReader, ViewReader and CommandReader.
bool ReadValueChild(ADXObject& object, const ADXElement& child, ReadPosition& position);
bool ReadBitmaskChild(ADXObject& object, const ADXElement& child, ReadPosition& position);
bool ReadLookupTableChild(ADXObject& object, const ADXElement& child, ReadPosition& position);
bool ReadListViewChild(ADXObject& object, const ADXElement& child, ReadPosition& position);
bool ReadHistogramChild(ADXObject& object, const ADXElement& child, ReadPosition& position);
bool ReadDashboardChild(ADXObject& object, const ADXElement& child, ReadPosition& position);
bool ReadMonitorChild(ADXObject& object, const ADXElement& child, ReadPosition& position);
bool ReadListenSilenceChild(ADXObject& object, const ADXElement& child, ReadPosition& position);
bool ReadListenChatterChild(ADXObject& object, const ADXElement& child, ReadPosition& position);
bool Read160BaudListenChild(ADXObject& object, const ADXElement& child, ReadPosition& position);
bool ReadSendCommandChild(ADXObject& object, const ADXElement& child, ReadPosition& position);
bool ReadTriggerChild(ADXObject& object, const ADXElement& child, ReadPosition& position);
bool ReadMacroChild(ADXObject& object, const ADXElement& child, ReadPosition& position);

// All kinds, in the order of the parser's states.
extern const std::array<ObjectKind, 13> kObjectKinds;

}  // namespace corvex
