// Reads a definition file into a definition.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>

#include "definition/ADXDefinition.h"
#include "files/adx/ADXElement.h"
#include "files/adx/HeaderReader.h"
#include "files/adx/IReadObserver.h"
#include "files/adx/ObjectReader.h"
#include "files/xml/ISAXCallback.h"

namespace corvex {

// Where in the file an error is.
struct ErrorPlace {
    std::uint32_t line = 0;               // from 1; 0 when it concerns no place
    std::optional<std::uint32_t> column;  // from 0; none when it concerns the whole element
};

// Element events are handled one step late, when the text inside is known. A known element puts the parser into the
// state of that name, whether it starts or ends there, and the state stays until the next one; what a state does not
// know is ignored. An error does not stop the parse: objects go on being added to the definition, and only the links
// are left unresolved. One object at a time is under construction; one whose end tag never comes is thrown away.
//
// Any bytes at all may be read. Parser objects may be used again. One thread at a time, the one that owns the
// definition.
class ADXParser final : public ISAXCallback {
public:
    static constexpr std::size_t kErrorSize = 256;

    // Add what the file holds to the definition. 1 on success; 0 on failure, with the message in GetError, which is
    // empty when the file has no "ADXFORMAT" with a version. `progress` may be null.
    int Parse(const char* path, ADXDefinition& definition, IProgress* progress = nullptr);
    // The same from bytes in memory.
    int ParseMemory(const void* bytes, std::size_t size, ADXDefinition& definition, IProgress* progress = nullptr);

    // The message of the last error of the last parse; a later error replaces an earlier one.
    const char* GetError() const { return error_; }
    const ErrorPlace& GetErrorPlace() const { return place_; }
    // Told of all that is read from now on; not owned, null for nobody.
    void SetObserver(IReadObserver* observer) { observer_ = observer; }
    // What the last parse read of the header, with the ids of commands that name no object.
    const HeaderWords& Header() const { return header_; }

    std::int32_t StartDocument() override { return 0; }
    std::int32_t EndDocument() override;
    std::int32_t StartElement(const char16_t* name, std::uint32_t length, const SAXAttribute* attributes,
                              std::uint32_t count) override;
    std::int32_t Characters(const char16_t* text, std::uint32_t length, std::int32_t more) override;
    std::int32_t EndElement(const char16_t* name, std::uint32_t length) override;
    std::int32_t StartCDATA() override { return 0; }
    std::int32_t CDATA(const char16_t*, std::uint32_t, std::int32_t) override { return 0; }
    std::int32_t EndCDATA() override { return 0; }
    std::int32_t Error(std::int32_t code, const char* message) override;

private:
    static constexpr std::size_t kRootState = 0, kHeaderState = 1, kFirstObjectState = 2;

    void Begin(ADXDefinition& definition, IProgress* progress);
    int Finish(std::int32_t code);
    void HandleElement();
    bool EnterState();
    ElementUse ReadRoot();
    ElementUse ReadHeader(bool own);
    ElementUse ReadObject(bool own);

    ADXDefinition* definition_ = nullptr;
    IProgress* progress_ = nullptr;
    std::size_t state_ = kRootState;
    ADXElement element_;
    bool closing_ = false;
    std::unique_ptr<ADXObject> object_;  // under construction, of the kind of the object state that was entered last
    ReadPosition position_;
    HeaderWords header_;
    bool validversion_ = false;
    bool failed_ = false;
    char error_[kErrorSize] = {};
    ErrorPlace place_;
    IReadObserver* observer_ = nullptr;
};

}  // namespace corvex
