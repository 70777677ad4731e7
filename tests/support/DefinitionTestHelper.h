// Builds definitions for tests in a few words, and shows what an object writes of itself.
#pragma once

#include <cstdint>
#include <cstring>
#include <memory>
#include <string>

#include "definition/ADXDefinition.h"
#include "definition/ADXObject.h"
#include "definition/ADXValue.h"

namespace corvex::test {

inline std::uint32_t Length(const char* text) {
    return static_cast<std::uint32_t>(std::strlen(text));
}

// A new object at the end of the list.
template <class T>
T* Add(ADXDefinition& definition, const char* id) {
    auto object = std::make_unique<T>();
    T* pointer = object.get();
    pointer->SetId(id);
    definition.InsertAt(std::move(object), 0xFFFFFFFF);
    return pointer;
}

template <class T>
T* AddTitled(ADXDefinition& definition, const char* id, const std::string& title) {
    T* object = Add<T>(definition, id);
    object->SetTitle(title.c_str(), static_cast<std::uint32_t>(title.size()));
    return object;
}

inline ADXValue* AddValue(ADXDefinition& definition, const char* id, const char* equation) {
    auto* value = Add<ADXValue>(definition, id);
    value->SetEquation(equation, Length(equation));
    return value;
}

// Makes a letter of the value's equation stand for another value.
inline void Link(ADXValue& value, char letter, std::uint32_t hash) {
    value.SetVar({ADXVar::kLink, letter, hash});
}

}  // namespace corvex::test
