// Reads definitions from text and gives saved ones as text.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "definition/ADXDefinition.h"

namespace corvex {

// The root alone, for texts that put objects behind it.
inline constexpr const char* kRoot = "<ADXFORMAT version=\"0.50\" />";

struct ParseResult {
    int ok = 0;
    std::string error;
};

// Parses a whole file text into the definition.
ParseResult ParseText(std::string_view text, ADXDefinition& definition, IProgress* progress = nullptr);
// Parses objects behind a good root; expects success.
void ParseObjects(const std::string& objects, ADXDefinition& definition);

// The n-th object, which must be of the class's type.
template <class T>
T& Get(const ADXDefinition& definition, std::uint32_t n = 0) {
    ADXObject* object = definition.GetObject(kTypeAny, n);
    if (object == nullptr || object->GetType() != T().GetType()) throw "no object of the type at this place";
    return static_cast<T&>(*object);
}

// The bytes that Save leaves on disk; expects success.
std::string SaveText(const ADXDefinition& definition);
// Saves and loads; expects both to succeed.
void SaveAndLoad(const ADXDefinition& definition, ADXDefinition& loaded);

// What is there when these objects have been read, told in lines of a member and its values as DescribeMember has them:
// "0 units = rpm", "2 row color = 0, 7".
struct ObjectsCase {
    const char* behaviour;
    std::string objects;  // behind a good root
    std::vector<std::string> lines;
};

void ExpectLines(const ADXDefinition& definition, const std::vector<std::string>& lines);
// Each case of a table.
void ExpectObjects(std::span<const ObjectsCase> cases);

// Notes what it is told.
class ProgressRecorder : public IProgress {
public:
    void SetRange(std::uint32_t maximum) override { calls.push_back("range " + std::to_string(maximum)); }
    void Step() override { calls.emplace_back("step"); }
    void SetPosition(std::uint32_t position) override { calls.push_back("position " + std::to_string(position)); }
    std::vector<std::string> calls;
};

}  // namespace corvex
