#include "tests/program/driver/GaugePictures.h"

#include "controls/analoggauge/AnalogGaugePaint.h"
#include "controls/digitalreadout/DigitalReadoutPaint.h"
#include "controls/statusgauge/StatusGaugePaint.h"

namespace corvex::test {

namespace {

template <class Model>
Picture Painted(HWND size, const Model& model, void (*paint)(HDC, const RECT&, const Model&)) {
    RECT area{};
    ::GetClientRect(size, &area);
    return Drawn(static_cast<int>(area.right), static_cast<int>(area.bottom), [&](HDC dc) { paint(dc, area, model); });
}

void SetText(GaugeText& place, const std::string& text) {
    place.Set(text.c_str(), text.size());
}

}  // namespace

Picture DialPicture(HWND size, const std::string& title, const std::vector<float>& shown) {
    AnalogGaugeModel model;
    SetText(model.title, title);
    SetText(model.units, "unit");
    model.digits = 1;
    model.scale.rangeMinimum = 0.0F;
    model.scale.rangeMaximum = 255.0F;
    const GaugeAlarmBand high{200.0F, 255.0F, 0x0000FF}, low{0.0F, 10.0F, 0x00B4FA};
    model.SetAlarm(10, &high);
    model.SetAlarm(10, &low);
    for (const float value : shown)
        model.SetValue(value);
    return Painted(size, model, &PaintAnalogGauge);
}

Picture ReadoutPicture(HWND size, const std::string& title, float value) {
    DigitalReadoutModel model;
    model.SetTitle(title.c_str());
    model.SetUnits("unit");
    model.SetFormat(1, 1);
    model.SetColour(kReadoutLowColour, 0x0080FF);
    model.SetColour(kReadoutHighColour, 0x0000FF);
    model.SetLowLimit(10.0F);
    model.SetHighLimit(200.0F);
    model.EnableHighLimit(1);
    model.EnableLowLimit(1);
    model.SetValue(0.0F);
    model.SetValue(value);
    return Painted(size, model, &PaintDigitalReadout);
}

Picture LampPicture(HWND size, const std::string& title, bool isOn) {
    StatusGaugeModel model;
    SetText(model.title, title);
    SetText(model.trueText, "on");
    SetText(model.falseText, "off");
    model.state = isOn ? 1 : 0;
    return Painted(size, model, &PaintStatusGauge);
}

}  // namespace corvex::test
