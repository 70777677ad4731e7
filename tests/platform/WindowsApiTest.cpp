// The system's header has macros for many an operation of ours. Behind our way to it they all keep their names: this
// program would not link if one had been renamed.
// clang-format off: the macros have to be there before our headers are.
#include "platform/WindowsApi.h"
// clang-format on

#include <gtest/gtest.h>

#include <memory>

#include "acquisition/DataAcqEngine.h"
#include "definition/ADXDefinition.h"
#include "definition/ADXHistogram.h"
#include "definition/ADXLookupTable.h"
#include "definition/ADXMacro.h"
#include "definition/ADXValue.h"
#include "session/SessionState.h"

namespace corvex {
namespace {

TEST(WindowsApiTest, LeavesTheNamesOfTheDefinitionAlone) {
    ADXDefinition definition;
    auto value = std::make_unique<ADXValue>();
    value->SetId("RPM");
    ADXValue* const stored = value.get();
    ASSERT_EQ(definition.InsertAt(std::move(value), 0), 1);
    EXPECT_EQ(definition.GetObject(kTypeAny, 0), stored);
    EXPECT_EQ(definition.FindByHash(0xCD0CD1DB), stored);
    EXPECT_EQ(definition.FindById("RPM"), stored);
    EXPECT_EQ(definition.GetCount(), 1U);
    char text[16] = {};
    EXPECT_EQ(stored->GetId(text, sizeof text), 3U);
}

TEST(WindowsApiTest, LeavesTheNamesOfTheSessionAlone) {
    SessionState session;
    session.PublishSample(0.0, nullptr, 0);
    EXPECT_EQ(session.engine.RunCommand(nullptr), kResultFail);
}

}  // namespace
}  // namespace corvex
