#include "views/DashGauge.h"

#include "controls/analoggauge/AnalogGauge.h"
#include "controls/digitalreadout/DigitalReadout.h"
#include "controls/statusgauge/StatusGauge.h"
#include "definition/ADXBitmask.h"
#include "definition/ADXValue.h"
#include "views/DashBindingModel.h"

namespace corvex {

namespace {

constexpr int kFirstSize = 300;  // until it is laid out

const char* ClassOf(std::uint32_t gaugetype) {
    switch (gaugetype) {
        case kAnalogGaugeType:
            return kAnalogGaugeClass;
        case kDigitalReadoutType:
            return kDigitalReadoutClass;
        case kStatusGaugeType:
            return kStatusGaugeClass;
        default:
            return nullptr;
    }
}

void SendText(HWND gauge, UINT message, const std::string& text) {
    ::SendMessageA(gauge, message, reinterpret_cast<WPARAM>(text.c_str()), static_cast<LPARAM>(text.size()));
}

void SendAnalogValue(HWND gauge, float value) {
    ::SendMessageA(gauge, AGM_SETVALUE, reinterpret_cast<WPARAM>(&value), TRUE);
}

void TellAnalogGauge(HWND gauge, const BindingStep& step) {
    constexpr WPARAM kAppend = 10;  // any index past the end
    const GaugeAlarmBand band{step.low, step.high, step.colour};
    switch (step.action) {
        case BindingAction::kTitle:
            return SendText(gauge, AGM_SETTITLE, step.text);
        case BindingAction::kUnits:
            return SendText(gauge, AGM_SETUNITS, step.text);
        case BindingAction::kValue:
            return SendAnalogValue(gauge, step.low);
        case BindingAction::kDigits:
            ::SendMessageA(gauge, AGM_SETDIGITS, 0, static_cast<LPARAM>(step.word));
            return;
        case BindingAction::kRange:
            ::SendMessageA(gauge, AGM_SETRANGE, reinterpret_cast<WPARAM>(&step.low),
                           reinterpret_cast<LPARAM>(&step.high));
            return;
        case BindingAction::kNoAlarms:
            ::SendMessageA(gauge, AGM_CLEARALARMS, 0, 0);
            return;
        case BindingAction::kAlarm:
            ::SendMessageA(gauge, AGM_SETALARM, kAppend, reinterpret_cast<LPARAM>(&band));
            return;
        default:
            return;
    }
}

void TellDigitalReadout(HWND gauge, const BindingStep& step) {
    switch (step.action) {
        case BindingAction::kTitle:
            DigitalReadoutSetTitle(gauge, step.text.c_str());
            return;
        case BindingAction::kUnits:
            DigitalReadoutSetUnits(gauge, step.text.c_str());
            return;
        case BindingAction::kFormat:
            DigitalReadoutSetFormat(gauge, static_cast<std::int32_t>(step.word), step.digits);
            return;
        case BindingAction::kColour:
            DigitalReadoutSetColor(gauge, step.word, step.colour);
            return;
        case BindingAction::kLowLimit:
            DigitalReadoutSetLowLimit(gauge, step.low);
            return;
        case BindingAction::kHighLimit:
            DigitalReadoutSetHighLimit(gauge, step.high);
            return;
        case BindingAction::kHighEnable:
            DigitalReadoutEnableHighLimit(gauge, step.word);
            return;
        case BindingAction::kLowEnable:
            DigitalReadoutEnableLowLimit(gauge, step.word);
            return;
        case BindingAction::kValue:
            DigitalReadoutSetValue(gauge, step.low);
            return;
        default:
            return;
    }
}

void TellStatusGauge(HWND gauge, const BindingStep& step) {
    switch (step.action) {
        case BindingAction::kTitle:
            return SendText(gauge, SGM_SETTITLE, step.text);
        case BindingAction::kTrueText:
            return SendText(gauge, SGM_SETTRUETEXT, step.text);
        case BindingAction::kFalseText:
            return SendText(gauge, SGM_SETFALSETEXT, step.text);
        default:
            return;
    }
}

}  // namespace

HWND MakeGauge(HWND page, ADXDGENTRY* entry, std::uint32_t index) {
    const char* const name = ClassOf(entry->gaugetype);
    if (name == nullptr) return nullptr;
    const auto instance = reinterpret_cast<HINSTANCE>(::GetWindowLongPtrA(page, GWLP_HINSTANCE));
    const auto id = reinterpret_cast<HMENU>(static_cast<UINT_PTR>(kFirstGaugeId) + index);
    const HWND gauge =
        ::CreateWindowExA(0, name, "", WS_CHILD, 0, 0, kFirstSize, kFirstSize, page, id, instance, nullptr);
    if (gauge != nullptr) ::SetWindowLongPtrA(gauge, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(entry));
    return gauge;
}

ADXDGENTRY* EntryOf(HWND gauge) {
    return reinterpret_cast<ADXDGENTRY*>(::GetWindowLongPtrA(gauge, GWLP_USERDATA));
}

void BindGauge(HWND gauge, const ADXDefinition& definition) {
    const ADXDGENTRY* const entry = EntryOf(gauge);
    if (entry == nullptr) return;
    constexpr void (*kTell[])(HWND, const BindingStep&) = {&TellAnalogGauge, &TellDigitalReadout, &TellStatusGauge};
    for (const BindingStep& step : BindingSteps(*entry, definition))
        kTell[entry->gaugetype](gauge, step);
}

std::optional<GaugeReading> ReadGauge(HWND gauge, const ADXDefinition& definition, PacketView packet,
                                      std::uint32_t commandId) {
    const ADXDGENTRY* const entry = EntryOf(gauge);
    if (entry == nullptr || !TakesSample(*entry, commandId)) return std::nullopt;
    auto* const bitmask = As<ADXBitmask>(entry->item);
    const double value = bitmask != nullptr ? bitmask->IsSet(definition, packet, 0, 0)
                                            : As<ADXValue>(entry->item)->Compute(definition, packet, 0, 0);
    return GaugeReading{gauge, entry->gaugetype, static_cast<float>(value)};
}

void ShowReading(const GaugeReading& reading) {
    switch (reading.gaugetype) {
        case kAnalogGaugeType:
            return SendAnalogValue(reading.gauge, reading.value);
        case kDigitalReadoutType:
            DigitalReadoutSetValue(reading.gauge, reading.value);
            return;
        default:
            ::SendMessageA(reading.gauge, SGM_SETSTATE, static_cast<WPARAM>(reading.value), TRUE);
    }
}

}  // namespace corvex
