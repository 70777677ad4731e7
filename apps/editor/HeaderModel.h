// The header of a definition as an editor shows it: texts to type, commands to choose from, and what is wrong with
// them.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "definition/ADXDefinition.h"

namespace corvex {

// What the header's commands may be, as a mask for GetObject.
inline constexpr std::uint32_t kHeaderCommandTypes = kCommandTypes;

enum class HeaderCommand : std::size_t { kConnect, kMonitor, kDisconnect };
inline constexpr std::size_t kHeaderCommandCount = 3;

enum class HeaderField { kAuthor, kVersion, kDescription, kBaud, kConnect, kMonitor, kDisconnect };

// As a dialog shows them. Texts in the system's narrow code page.
struct HeaderFields {
    std::string author, version;
    std::string description;  // lines end in CR LF
    std::string baud;
    bool echo = false;
    std::array<std::size_t, kHeaderCommandCount> command{};  // places in the lists of choices

    bool operator==(const HeaderFields&) const = default;
};

struct CommandChoice {
    std::string label;
    ADXObject* object;  // not owned; null for none
};

struct HeaderProblem {
    HeaderField field;
    std::string message;  // begins with the field's name
};

// Stands over a definition that outlives it and whose list of objects stays the same meanwhile. One thread.
class HeaderModel {
public:
    // The most characters that a reader of the header takes.
    static constexpr std::size_t kAuthorLength = 59, kVersionLength = 19, kDescriptionLength = 1023;
    static constexpr std::uint32_t kLowestBaud = 1, kHighestBaud = 1000000;

    explicit HeaderModel(ADXDefinition& definition);

    // As they were when the model was built.
    const HeaderFields& Fields() const { return fields_; }

    // First none, then what the header names now if that is no command of the list, then all commands in their order.
    const std::vector<CommandChoice>& Choices(HeaderCommand command) const { return choices_[Place(command)]; }
    // Where in the choices an object stands; 0, which is none, when it doesn't.
    std::size_t ChoiceOf(HeaderCommand command, const ADXObject* object) const;

    // What a dialog's controls hold, with each text that nobody touched taken from Fields. A control may give back
    // another text than it was given, such as bytes that are no character: `shown` is what the controls gave back when
    // they had just been filled.
    HeaderFields Typed(const HeaderFields& shown, HeaderFields now) const;

    // The first field that the definition can't take or the file can't hold; nothing when all is well.
    std::optional<HeaderProblem> Validate(const HeaderFields& fields) const;
    // Puts fields without a problem into the definition. Texts that are as they were shown stay byte for byte; one of
    // nothing but blanks, which no file gives back, is none.
    void Apply(const HeaderFields& fields);

private:
    static std::size_t Place(HeaderCommand command) { return static_cast<std::size_t>(command); }
    ADXObject*& Slot(HeaderCommand command);
    void List(HeaderCommand command);
    std::string Description(const HeaderFields& fields) const;
    std::optional<std::string> CommandTrouble(const ADXObject* object) const;

    ADXDefinition& definition_;
    HeaderFields fields_;
    std::string description_;  // as the file has it
    std::array<std::vector<CommandChoice>, kHeaderCommandCount> choices_;
};

}  // namespace corvex
