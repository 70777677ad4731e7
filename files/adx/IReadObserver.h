// Who wants to know what the reader of definition files makes of each element.
#pragma once

#include "definition/ADXObject.h"
#include "files/adx/ADXElement.h"

namespace corvex {

// What an element means to the reader at the place where it stands: the format line, the begin of the header or of an
// object, a field that is known there, or nothing.
enum class ElementUse { kFormat, kHeader, kObject, kField, kNone };

// Called while ADXParser reads, on its thread, in the order of the file.
class IReadObserver {
public:
    // Each element once, when its text is known. Good for the call only.
    virtual void ElementRead(const ADXElement& element, ElementUse use) = 0;
    virtual void HeaderEnded() = 0;
    // The object that the last kObject began is whole and goes into the definition.
    virtual void ObjectEnded(const ADXObject& object) = 0;

protected:
    ~IReadObserver() = default;
};

}  // namespace corvex
