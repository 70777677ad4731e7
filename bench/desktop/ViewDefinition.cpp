#include "bench/desktop/ViewDefinition.h"

#include <stdexcept>

#include "definition/ADXDashboard.h"
#include "definition/ADXDefinition.h"

namespace corvex::bench {

namespace {

constexpr std::uint32_t kColumns = 4, kRows = 3, kReadouts = 8;
constexpr std::uint32_t kAnalogType = 0, kReadoutType = 1, kLampType = 2;

std::uint16_t Percent(std::uint32_t part, std::uint32_t of) {
    return static_cast<std::uint16_t>(100 * part / of);
}

ADXDGENTRY Gauge(const ADXDefinition& definition, std::uint32_t index, Dashboard kind) {
    const bool isLamp = index >= kReadouts, isAnalog = kind == kFourAnalog && index % 2 == 0;
    const std::uint32_t column = index % kColumns, row = index / kColumns;
    ADXDGENTRY entry;
    entry.gaugetype = isLamp ? kLampType : isAnalog ? kAnalogType : kReadoutType;
    entry.left = Percent(column, kColumns);
    entry.right = Percent(column + 1, kColumns);
    entry.top = Percent(row, kRows);
    entry.bottom = Percent(row + 1, kRows);
    entry.item =
        isLamp ? definition.GetObject(kTypeBitmask, index - kReadouts) : definition.GetObject(kTypeValue, index);
    if (entry.item == nullptr) throw std::runtime_error("the example has too few items");
    entry.itemidhash = entry.item->GetIdHash();
    return entry;
}

void Fill(const ADXDefinition& definition, Dashboard kind) {
    auto* const dashboard = As<ADXDashboard>(definition.GetObject(kTypeDashboard, static_cast<std::uint32_t>(kind)));
    if (dashboard == nullptr) throw std::runtime_error("the example has too few dashboards");
    dashboard->SetEntryCount(0);
    for (std::uint32_t i = 0; i < kColumns * kRows; ++i) {
        const ADXDGENTRY entry = Gauge(definition, i, kind);
        dashboard->AddEntry(&entry);
    }
}

}  // namespace

std::string PutViewDefinition(const test::ProgramFolder& folder) {
    const std::string path = folder.TakeExample("harrier-8192.adx");
    ADXDefinition definition;
    if (definition.Load(path.c_str()) == 0) throw std::runtime_error("no definition " + path);
    for (const Dashboard kind : {kTwelveReadouts, kFourAnalog})
        Fill(definition, kind);
    if (definition.Save(path.c_str()) == 0) throw std::runtime_error("cannot write " + path);
    return path;
}

}  // namespace corvex::bench
