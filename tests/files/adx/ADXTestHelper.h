// Reads definitions from text and gives saved ones as text.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
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

// Appends a new object with the id.
template <class T>
T& Add(ADXDefinition& definition, const char* id) {
    auto object = std::make_unique<T>();
    T& added = *object;
    added.SetId(id);
    definition.InsertAt(std::move(object), 0xFFFFFFFF);
    return added;
}

bool Contains(const std::string& text, const std::string& part);

// A file of its own for each instance, deleted at the end.
class TempFile {
public:
    TempFile();
    ~TempFile();
    TempFile(const TempFile&) = delete;
    TempFile& operator=(const TempFile&) = delete;
    const char* Path() const { return path_.c_str(); }
    void Write(std::string_view bytes) const;
    std::string Read() const;

private:
    std::string path_;
};

// The bytes that Save leaves on disk; expects success.
std::string SaveText(const ADXDefinition& definition);
// The same without the line of the time.
std::string SaveTextWithoutTime(const ADXDefinition& definition);

// Saves and loads; expects both to succeed.
void SaveAndLoad(const ADXDefinition& definition, ADXDefinition& loaded);

// Notes what it is told.
class ProgressRecorder : public IProgress {
public:
    void SetRange(std::uint32_t maximum) override { calls.push_back("range " + std::to_string(maximum)); }
    void Step() override { calls.emplace_back("step"); }
    void SetPosition(std::uint32_t position) override { calls.push_back("position " + std::to_string(position)); }
    std::vector<std::string> calls;
};

}  // namespace corvex
