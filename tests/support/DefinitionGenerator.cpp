#include "tests/support/DefinitionGenerator.h"

#include <memory>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "definition/ADXBitmask.h"
#include "definition/ADXC160BaudListen.h"
#include "definition/ADXCListenChatter.h"
#include "definition/ADXCListenSilence.h"
#include "definition/ADXCSendCommand.h"
#include "definition/ADXCTrigger.h"
#include "definition/ADXDashboard.h"
#include "definition/ADXHistogram.h"
#include "definition/ADXListView.h"
#include "definition/ADXLookupTable.h"
#include "definition/ADXMacro.h"
#include "definition/ADXMonitor.h"
#include "definition/ADXValue.h"

namespace corvex {
namespace {

class Generator {
public:
    Generator(std::uint32_t seed, ADXDefinition& definition) : random_(seed), definition_(definition) {}

    void Run() {
        const std::uint32_t rounds = 1 + Below(4);
        for (std::uint32_t i = 0; i < rounds; ++i) {
            AddCommands();
            AddMacro();
            for (std::uint32_t n = Below(8); n > 0; --n)
                AddValue();
            for (std::uint32_t n = Below(8); n > 0; --n)
                AddBitmask();
            AddTable();
            AddViews();
            AddHistogram();
        }
        Link();
        FillHeader();
    }

private:
    // The distributions of the library differ between targets; the engine does not.
    std::uint32_t Below(std::uint32_t limit) { return static_cast<std::uint32_t>(random_()) % limit; }
    bool Chance() { return Below(2) != 0; }
    std::uint32_t Word() { return Chance() ? Below(300) : static_cast<std::uint32_t>(random_()); }
    std::uint32_t WordOrZero() { return Chance() ? 0 : Word(); }
    // A text for a setter that takes its length.
    template <class Object, class Setter>
    void Set(Object& object, Setter setter, const std::string& text) {
        (object.*setter)(text.data(), static_cast<std::uint32_t>(text.size()));
    }
    template <class... Members>
    void Words(Members&... members) {
        ((members = static_cast<Members>(Word())), ...);
    }
    template <class... Members>
    void Numbers(Members&... members) {
        ((members = Number()), ...);
    }
    float Number() { return (static_cast<float>(Below(2000000)) - 1000000.0F) / 64.0F; }
    std::string Text(std::size_t limit) { return Characters(limit, false); }
    std::string PlainText(std::size_t limit) { return Characters(limit, true); }

    // Never blank as a whole, since blanks between tags are no text. Plain texts are those that the file does not
    // escape.
    std::string Characters(std::size_t limit, bool plain) {
        if (Below(4) == 0) return {};
        std::string text(1 + Below(Below(8) == 0 ? static_cast<std::uint32_t>(limit) : 20), 'a');
        for (std::size_t i = 1; i < text.size(); ++i) {
            char c = static_cast<char>(1 + Below(255));
            if (plain && (c == '&' || c == '<' || c == '"')) c = '_';
            text[i] = c;
        }
        return text;
    }

    template <class T>
    T& Add() {
        auto object = std::make_unique<T>();
        T& added = *object;
        constexpr char kLetters[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZ-_.: <&>";
        std::string id = std::to_string(serial_++);
        const std::size_t length = id.size() + Below(static_cast<std::uint32_t>(15 - id.size()));
        // Ids stand unescaped where commands are named.
        const std::uint32_t letters = (object->GetType() & 0xFFFF0000) != 0 ? 30 : 34;
        while (id.size() < length)
            id.insert(id.begin(), kLetters[Below(letters)]);
        added.SetId(id.c_str());
        Set(added, &T::SetTitle, Text(255));
        Set(added, &T::SetDesc, Text(1023));
        // Base flags of commands do not survive.
        if ((added.GetType() & 0xFFFF0000) == 0) added.SetBaseFlags(WordOrZero());
        const std::uint32_t place = Chance() ? 0xFFFFFFFF : Below(1 + definition_.GetCount());
        definition_.InsertAt(std::move(object), place);
        return added;
    }

    ADXObject* Pick(std::uint32_t mask) {
        std::vector<ADXObject*> found;
        for (const auto& object : definition_.Objects()) {
            if ((object->GetType() & mask) != 0) found.push_back(object.get());
        }
        return found.empty() ? nullptr : found[Below(static_cast<std::uint32_t>(found.size()))];
    }

    std::uint32_t PickHash(std::uint32_t mask) {
        const ADXObject* object = Pick(mask);
        return object == nullptr ? 0 : object->GetIdHash();
    }

    void AddCommands() {
        std::vector<std::uint8_t> bytes(204);
        for (std::uint8_t& byte : bytes)
            byte = static_cast<std::uint8_t>(Below(256));
        auto& send = Add<ADXCSendCommand>();
        send.SetBytes(bytes.data(), Below(205));
        Words(send.replysize, send.replytimeout, send.packetoffset, send.packetsize);
        send.flags = WordOrZero();
        auto& silence = Add<ADXCListenSilence>();
        Words(silence.silencelen, silence.totaltimeout);
        auto& chatter = Add<ADXCListenChatter>();
        chatter.SetBytes(bytes.data(), Below(10));
        chatter.listentimeout = Word();
        chatter.flags = WordOrZero();
        auto& listen = Add<ADXC160BaudListen>();
        listen.packetsize = Word();
        listen.flags = WordOrZero();
        auto& trigger = Add<ADXCTrigger>();
        trigger.triggertype = Word();
        trigger.flags = WordOrZero();
    }

    void AddMacro() {
        auto& macro = Add<ADXMacro>();
        macro.flags = WordOrZero();
        macro.repeatcount = Word();
    }

    void AddValue() {
        constexpr const char* kEquations[] = {"X",   "(X*0.75)-40", "-X+1", "A/256+B", "2 # (c - d)", "((X-40)*1.8)+32",
                                              "X>3", "X^1|Y",       "12.5"};
        auto& value = Add<ADXValue>();
        Set(value, &ADXValue::SetUnits, PlainText(500));
        value.flags = WordOrZero();
        value.packetoffset = Word();
        value.sizeinbits = Chance() ? 8 : Word();
        value.outputtype = Below(5);
        value.digcount = static_cast<std::uint8_t>(Below(256));
        Numbers(value.alarmlow, value.alarmhigh, value.rangelow, value.rangehigh);
        value.unittype = static_cast<std::uint16_t>(WordOrZero());
        value.datatype = static_cast<std::uint16_t>(WordOrZero());
        const std::string equation = Below(8) == 0 ? "" : kEquations[Below(9)];
        value.SetEquation(equation.data(), static_cast<std::uint32_t>(equation.size()));
    }

    void LinkValue(ADXValue& value) {
        value.parentcmdidhash = Chance() ? 0 : PickHash(kTypeSendCommand | kType160BaudListen);
        for (std::uint32_t i = 0; i < value.GetVarCount(); ++i) {
            ADXVar var;
            value.GetVar(i, &var);
            if (Chance()) continue;
            var.type = 1;
            var.linkidhash = Chance() ? Word() : PickHash(kTypeValue);
            value.SetVar(var);
        }
        if (Chance()) return;
        value.lookup = static_cast<ADXLookupTable*>(Pick(kTypeLookupTable));
        if (value.lookup != nullptr) value.lookupidhash = value.lookup->GetIdHash();
    }

    void AddBitmask() {
        auto& bitmask = Add<ADXBitmask>();
        Set(bitmask, &ADXBitmask::SetTrueString, PlainText(500));
        Set(bitmask, &ADXBitmask::SetFalseString, PlainText(500));
        bitmask.flags = WordOrZero();
        bitmask.parentcmdidhash = WordOrZero();
        bitmask.packetoffset = Word();
        bitmask.sizeinbits = Chance() ? 8 : Word();
        Words(bitmask.operand, bitmask.result);
        bitmask.bitop = Below(2);
        Words(bitmask.alarmonsetcolor, bitmask.alarmonnotsetcolor);
    }

    void AddTable() {
        auto& table = Add<ADXLookupTable>();
        table.flags = WordOrZero();
        table.inputtype = Word();
        table.SetOutputType(Chance() ? std::uint32_t{ADXLookupTable::kText} : std::uint32_t{ADXLookupTable::kFloat});
        table.SetLookupMode(Below(5));
        const std::uint32_t rows = Below(20);
        for (std::uint32_t i = 0; i < rows; ++i) {
            const std::string text = PlainText(255);
            if (table.GetOutputType() == ADXLookupTable::kText) {
                table.AddEntryText(Number(), text.data(), static_cast<std::uint32_t>(text.size()));
            } else {
                table.AddEntry(Number(), Number());
            }
        }
    }

    void AddViews() {
        Add<ADXListView>().flags = WordOrZero();
        Add<ADXDashboard>().flags = WordOrZero();
        Add<ADXMonitor>().flags = WordOrZero();
    }

    void AddHistogram() {
        auto& histogram = Add<ADXHistogram>();
        histogram.flags = WordOrZero();
        histogram.SetRows(Below(9));
        histogram.SetCols(Below(9));
        histogram.SetXMin(Number());
        histogram.SetXMax(Number());
        histogram.SetYMin(Number());
        histogram.SetYMax(Number());
        histogram.SetHistorySize(1 + Below(30));
    }

    void FillMacro(ADXMacro& macro) {
        const std::uint32_t count = Below(8);
        for (std::uint32_t i = 0; i < count; ++i) {
            ADXMacroNode node;
            node.command = Pick(0xFFFF0000);
            node.command->GetId(node.commandid, sizeof node.commandid);
            node.flags = WordOrZero();
            node.repeatcount = Word();
            macro.AddNode(&node);
        }
    }

    void FillListView(ADXListView& view) {
        view.SetEntryCount(Below(8) == 0 ? 255 : Below(12));
        for (std::uint32_t i = 0; i < view.GetEntryCount(); ++i) {
            ADXLVENTRY& row = *view.GetEntry(i);
            row.entrytype = Below(2);
            row.flags = WordOrZero();
            row.color = WordOrZero();
            const std::string title = Text(255);
            row.title.Set(title.data(), title.size());
            if (row.entrytype == 0) row.SetItem(Pick(kTypeValue | kTypeBitmask));
        }
    }

    void FillDashboard(ADXDashboard& dashboard) {
        const std::uint32_t count = Below(12);
        for (std::uint32_t i = 0; i < count; ++i) {
            ADXDGENTRY gauge;
            gauge.flags = WordOrZero();
            gauge.gaugetype = Below(4);
            Words(gauge.left, gauge.top, gauge.right, gauge.bottom);
            gauge.item = Chance() ? nullptr : Pick(kTypeValue | kTypeBitmask);
            gauge.itemidhash = gauge.item == nullptr ? 0 : gauge.item->GetIdHash();
            dashboard.AddEntry(&gauge);
        }
    }

    void FillMonitor(ADXMonitor& monitor) {
        const std::uint32_t count = Below(6);
        for (std::uint32_t i = 0; i < count; ++i) {
            ADXMONSERIES series;
            series.flags = WordOrZero() & 0xFFFF;
            Words(series.linecolor, series.axiscolor, series.linewidth);
            series.linetype = static_cast<std::uint8_t>(WordOrZero());
            series.item = Pick(kTypeValue);
            if (series.item == nullptr) continue;
            series.itemidhash = series.item->GetIdHash();
            monitor.AddEntry(&series);
        }
    }

    void FillHistogram(ADXHistogram& histogram) {
        histogram.parentcmdidhash = WordOrZero();
        if (Chance() && histogram.SetX(Pick(kTypeValue)) != 0) histogram.xidhash = histogram.GetX()->GetIdHash();
        if (Chance() && histogram.SetY(Pick(kTypeValue)) != 0) histogram.yidhash = histogram.GetY()->GetIdHash();
        if (Chance() && histogram.SetZ(Pick(kTypeValue)) != 0) histogram.zidhash = histogram.GetZ()->GetIdHash();
    }

    // After all objects are there, so that links point forward as well as back.
    void Link() {
        for (const auto& object : definition_.Objects()) {
            if (object->GetType() == kTypeMacro) FillMacro(static_cast<ADXMacro&>(*object));
            if (object->GetType() == kTypeValue) LinkValue(static_cast<ADXValue&>(*object));
            if (object->GetType() == kTypeListView) FillListView(static_cast<ADXListView&>(*object));
            if (object->GetType() == kTypeDashboard) FillDashboard(static_cast<ADXDashboard&>(*object));
            if (object->GetType() == kTypeMonitor) FillMonitor(static_cast<ADXMonitor&>(*object));
            if (object->GetType() == kTypeHistogram) FillHistogram(static_cast<ADXHistogram&>(*object));
        }
    }

    void FillHeader() {
        Set(definition_, &ADXDefinition::SetUserVersion, PlainText(1023));
        Set(definition_, &ADXDefinition::SetAuthor, PlainText(1023));
        Set(definition_, &ADXDefinition::SetDesc, PlainText(1023));
        definition_.flags = WordOrZero();
        definition_.baud = Word();
        definition_.connectcmd = Chance() ? nullptr : Pick(0xFFFF0000);
        definition_.monitorcmd = Chance() ? nullptr : Pick(0xFFFF0000);
        definition_.disconnectcmd = Chance() ? nullptr : Pick(0xFFFF0000);
    }

    std::mt19937 random_;
    ADXDefinition& definition_;
    std::uint32_t serial_ = 0;
};

}  // namespace

void GenerateDefinition(std::uint32_t seed, ADXDefinition& definition) {
    Generator(seed, definition).Run();
}

}  // namespace corvex
