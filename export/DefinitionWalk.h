// The objects of a definition one by one, each as what it is.
#pragma once

#include "definition/ADXBitmask.h"
#include "definition/ADXC160BaudListen.h"
#include "definition/ADXCListenChatter.h"
#include "definition/ADXCListenSilence.h"
#include "definition/ADXCSendCommand.h"
#include "definition/ADXCTrigger.h"
#include "definition/ADXDashboard.h"
#include "definition/ADXDefinition.h"
#include "definition/ADXHistogram.h"
#include "definition/ADXListView.h"
#include "definition/ADXLookupTable.h"
#include "definition/ADXMacro.h"
#include "definition/ADXMonitor.h"
#include "definition/ADXValue.h"

namespace corvex {

// Calls sink.Add with the object if it is of one of the kinds.
template <class... Kinds, class Sink>
void AddAsOneOf(Sink& sink, const ADXObject& object) {
    const auto offer = [&](const auto* found) {
        if (found != nullptr) sink.Add(*found);
    };
    (offer(As<Kinds>(&object)), ...);
}

// Tells all objects in the order of the definition. A sink that has no Add for one of the kinds does not compile.
template <class Sink>
void WalkObjects(const ADXDefinition& definition, Sink& sink) {
    for (const auto& object : definition.Objects())
        AddAsOneOf<ADXCSendCommand, ADXC160BaudListen, ADXCListenSilence, ADXCListenChatter, ADXCTrigger, ADXMacro,
                   ADXValue, ADXBitmask, ADXLookupTable, ADXListView, ADXDashboard, ADXHistogram, ADXMonitor>(sink,
                                                                                                              *object);
}

}  // namespace corvex
