#include <gtest/gtest.h>

#include <memory>
#include <typeinfo>
#include <vector>

#include "export/DefinitionWalk.h"

namespace corvex {
namespace {

struct Walked {
    const ADXObject* object;
    const std::type_info* kind;
};

struct RecordingSink {
    template <class T>
    void Add(const T& object) {
        walked.push_back({&object, &typeid(T)});
    }
    std::vector<Walked> walked;
};

template <class... Kinds>
void Fill(ADXDefinition& definition) {
    (definition.InsertAt(std::make_unique<Kinds>(), 0xFFFFFFFF), ...);
}

TEST(DefinitionWalkTest, TellsEachKindAsItsClassInTheOrderOfTheDefinition) {
    ADXDefinition definition;
    Fill<ADXValue, ADXCTrigger, ADXMonitor, ADXBitmask, ADXMacro, ADXHistogram, ADXCSendCommand, ADXLookupTable,
         ADXC160BaudListen, ADXListView, ADXCListenSilence, ADXDashboard, ADXCListenChatter, ADXValue>(definition);
    definition.InsertAt(std::make_unique<ADXObject>(), 3);
    RecordingSink sink;
    WalkObjects(definition, sink);
    ASSERT_EQ(sink.walked.size(), 14U) << "a bare object is of no kind";
    for (std::size_t i = 0; i < sink.walked.size(); ++i) {
        const ADXObject& object = *definition.Objects()[i < 3 ? i : i + 1];
        EXPECT_EQ(sink.walked[i].object, &object) << i;
        EXPECT_EQ(*sink.walked[i].kind, typeid(object)) << i;
    }
}

}  // namespace
}  // namespace corvex
