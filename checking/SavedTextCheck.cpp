#include <cmath>
#include <cstdlib>
#include <string>

#include "checking/CheckContext.h"
#include "checking/EquationFacts.h"
#include "definition/ADXBitmask.h"
#include "definition/ADXHistogram.h"
#include "definition/ADXListView.h"
#include "definition/ADXLookupTable.h"
#include "definition/ADXMacro.h"
#include "definition/ADXValue.h"
#include "export/text/TextFormat.h"

namespace corvex {

namespace {

// Texts of a loaded element are held in 1023 characters, those of an attribute in 255.
constexpr std::size_t kElementLimit = 1023;
constexpr std::size_t kAttributeLimit = 255;
constexpr std::size_t kEquationLimit = 99;

class SavedTexts {
public:
    SavedTexts(CheckContext& context, const ADXObject* object) : context_(context), object_(object) {}

    // A text written as it stands. An attribute also ends at a double quote.
    void Unescaped(const char* name, const std::string& text, bool attribute) {
        const std::size_t bad = text.find_first_of(attribute ? "&<\"" : "&<");
        if (bad != std::string::npos)
            context_.Lost(
                Severity::kError, object_,
                Printf("%s \"%s\" holds a %c, which is saved unescaped: the saved file cannot be read back as it was",
                       name, DisplayText(text).c_str(), text[bad]));
        Length(name, text, attribute ? kAttributeLimit : kElementLimit);
        if (!attribute) Blank(name, text);
    }

    void Length(const char* name, const std::string& text, std::size_t limit) {
        if (text.size() > limit)
            context_.Lost(Severity::kWarning, object_,
                          Printf("%s of %u characters is cut to %u when the saved file is read", name,
                                 static_cast<unsigned>(text.size()), static_cast<unsigned>(limit)));
    }

    // The parser never hands over the text of an element when it is nothing but blanks.
    void Blank(const char* name, const std::string& text) {
        if (!text.empty() && text.find_first_not_of(" \t\r\n") == std::string::npos)
            context_.Lost(Severity::kWarning, object_,
                          Printf("%s is nothing but blanks, which are not read back", name));
    }

    // Numbers are saved with six decimals.
    void Number(const char* name, float value) {
        const std::string text = Printf("%f", static_cast<double>(value));
        if (std::isfinite(value) && std::strtof(text.c_str(), nullptr) == value) return;
        context_.Lost(Severity::kWarning, object_,
                      Printf("%s %g is saved as %s", name, static_cast<double>(value), text.c_str()));
    }

private:
    CheckContext& context_;
    const ADXObject* object_;
};

std::string TextOf(const OwnedText& text) {
    return text.IsSet() ? text.CStr() : "";
}

void CheckValueTexts(CheckContext& context, const ADXValue& value) {
    SavedTexts texts(context, &value);
    texts.Unescaped("units", value.Units(), false);
    const std::string equation = WholeEquation(value);
    texts.Unescaped("equation", equation, true);
    if (equation.size() > kEquationLimit)
        context.Lost(Severity::kError, &value,
                     Printf("its equation of %u characters is cut to %u on save",
                            static_cast<unsigned>(equation.size()), static_cast<unsigned>(kEquationLimit)));
    texts.Number("range low", value.rangelow);
    texts.Number("range high", value.rangehigh);
    texts.Number("alarm low", value.alarmlow);
    texts.Number("alarm high", value.alarmhigh);
}

void CheckTableTexts(CheckContext& context, const ADXLookupTable& table) {
    SavedTexts texts(context, &table);
    const bool text = table.GetOutputType() == ADXLookupTable::kText;
    for (std::uint32_t i = 0; i < table.GetEntryCount(); ++i) {
        float input = 0.0F;
        float output = 0.0F;
        char row[1024];
        if (text) {
            table.GetEntryText(i, &input, row, sizeof row);
            texts.Unescaped(Printf("output of row %u", i + 1).c_str(), row, true);
        } else {
            table.GetEntry(i, &input, &output);
            texts.Number(Printf("output of row %u", i + 1).c_str(), output);
        }
        texts.Number(Printf("input of row %u", i + 1).c_str(), input);
    }
}

void CheckRowTitles(CheckContext& context, const ADXListView& view) {
    SavedTexts texts(context, &view);
    for (std::uint32_t i = 0; i < view.GetEntryCount(); ++i)
        texts.Length(Printf("title of row %u", i + 1).c_str(), TextOf(view.GetEntry(i)->title), kAttributeLimit);
}

// Ids are escaped where an object tells its own, and written as they stand where others name it.
void CheckNodeIds(CheckContext& context, const ADXMacro& macro) {
    SavedTexts texts(context, &macro);
    std::uint32_t number = 0;
    for (const ADXMacroNode& node : macro.Nodes()) {
        ++number;
        if (node.command != nullptr)
            texts.Unescaped(Printf("commandID of node %u", number).c_str(), node.command->Id(), true);
    }
}

void CheckHeaderId(CheckContext& context, const char* name, const ADXObject* command) {
    if (command != nullptr) SavedTexts(context, nullptr).Unescaped(name, command->Id(), false);
}

// Measured by the getters, which take a text at its limit for none.
void CheckMeasured(CheckContext& context, const char* name, const OwnedText& text, std::size_t limit) {
    if (text.Length() >= limit)
        context.Warn(nullptr, "long-header",
                     Printf("%s of %u characters shows as empty: %u is the most", name,
                            static_cast<unsigned>(text.Length()), static_cast<unsigned>(limit - 1)));
}

}  // namespace

void CheckSavedTexts(CheckContext& context, const ADXObject& object) {
    SavedTexts texts(context, &object);
    texts.Length("title", object.Title(), kAttributeLimit);
    texts.Length("desc", object.Desc(), kElementLimit);
    texts.Blank("desc", object.Desc());
    if (const auto* value = As<ADXValue>(&object)) CheckValueTexts(context, *value);
    if (const auto* bit = As<ADXBitmask>(&object)) {
        texts.Unescaped("truestring", bit->TrueString(), false);
        texts.Unescaped("falsestring", bit->FalseString(), false);
    }
    if (const auto* table = As<ADXLookupTable>(&object)) CheckTableTexts(context, *table);
    if (const auto* view = As<ADXListView>(&object)) CheckRowTitles(context, *view);
    if (const auto* macro = As<ADXMacro>(&object)) CheckNodeIds(context, *macro);
    if (const auto* histogram = As<ADXHistogram>(&object)) {
        texts.Number("xmin", histogram->GetXMin());
        texts.Number("xmax", histogram->GetXMax());
        texts.Number("ymin", histogram->GetYMin());
        texts.Number("ymax", histogram->GetYMax());
    }
}

void CheckSavedHeader(CheckContext& context) {
    const ADXDefinition& definition = context.Definition();
    SavedTexts texts(context, nullptr);
    texts.Unescaped("userversion", TextOf(definition.UserVersion()), false);
    texts.Unescaped("author", TextOf(definition.Author()), false);
    texts.Unescaped("desc", TextOf(definition.Desc()), false);
    CheckHeaderId(context, "connectcmd", definition.connectcmd);
    CheckHeaderId(context, "monitorcmd", definition.monitorcmd);
    CheckHeaderId(context, "disconnectcmd", definition.disconnectcmd);
    CheckMeasured(context, "userversion", definition.UserVersion(), 20);
    CheckMeasured(context, "author", definition.Author(), 60);
    CheckMeasured(context, "desc", definition.Desc(), 1024);
}

}  // namespace corvex
