#include "apps/cli/DefinitionJson.h"

#include <nlohmann/json.hpp>
#include <string>

#include "apps/cli/DefinitionText.h"
#include "checking/EquationFacts.h"
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
#include "export/text/ObjectNames.h"
#include "export/text/TextFormat.h"

namespace corvex {

namespace {

using Json = nlohmann::ordered_json;

Json IdOf(const ADXObject* object) {
    return object == nullptr ? Json() : Json(Utf8Text(object->Id()));
}

Json IdOfHash(const ADXDefinition& definition, std::uint32_t hash) {
    return IdOf(definition.FindByHash(hash));
}

Json TextJson(const OwnedText& text) {
    return text.IsSet() ? Json(Utf8Text(text.CStr())) : Json();
}

Json BaseJson(const ADXObject& object) {
    Json json{
        {"id", Utf8Text(object.Id())}, {"idhash", HashText(object.GetIdHash())}, {"title", Utf8Text(object.Title())}};
    if (*object.Desc() != '\0') json["desc"] = Utf8Text(object.Desc());
    return json;
}

void AddField(Json& json, const ADXDefinition& definition, std::uint32_t parent, std::uint32_t offset,
              std::uint32_t bits, std::uint32_t flags) {
    json["command"] = IdOfHash(definition, parent);
    json["packetoffset"] = offset;
    json["sizeinbits"] = bits;
    json["lowbytefirst"] = (flags & kFlagLowByteFirst) != 0;
}

Json ValueJson(const ADXDefinition& definition, const ADXValue& value) {
    Json json = BaseJson(value);
    json["units"] = Utf8Text(value.Units());
    json["equation"] = Utf8Text(WholeEquation(value));
    AddField(json, definition, value.parentcmdidhash, value.packetoffset, value.sizeinbits, value.flags);
    json["signed"] = (value.flags & ADXValue::kSigned) != 0;
    json["range"] = {value.rangelow, value.rangehigh};
    json["alarmlow"] = (value.flags & ADXValue::kAlarmLow) != 0 ? Json(value.alarmlow) : Json();
    json["alarmhigh"] = (value.flags & ADXValue::kAlarmHigh) != 0 ? Json(value.alarmhigh) : Json();
    json["outputtype"] = value.outputtype;
    json["digcount"] = value.digcount;
    json["table"] = IdOf(value.lookup);
    ADXVar var;
    for (std::uint32_t i = 0; value.GetVar(i, &var) != 0; ++i) {
        if (var.type == 1) json["links"][std::string(1, var.varid)] = IdOfHash(definition, var.linkidhash);
    }
    return json;
}

Json BitmaskJson(const ADXDefinition& definition, const ADXBitmask& bit) {
    Json json = BaseJson(bit);
    json["truestring"] = Utf8Text(bit.TrueString());
    json["falsestring"] = Utf8Text(bit.FalseString());
    AddField(json, definition, bit.parentcmdidhash, bit.packetoffset, bit.sizeinbits, bit.flags);
    json["operand"] = bit.operand;
    json["bitop"] = bit.bitop == ADXBitmask::kXor ? "XOR" : "AND";
    json["result"] = bit.result;
    json["alarmonset"] = (bit.flags & ADXBitmask::kAlarmOnSet) != 0;
    json["alarmonnotset"] = (bit.flags & ADXBitmask::kAlarmOnNotSet) != 0;
    return json;
}

Json TableJson(const ADXLookupTable& table) {
    Json json = BaseJson(table);
    json["outputtype"] = table.GetOutputType();
    json["lookupmode"] = table.GetLookupMode();
    json["rows"] = Json::array();
    for (std::uint32_t i = 0; i < table.GetEntryCount(); ++i) {
        float input = 0.0F;
        float output = 0.0F;
        char text[1024] = {};
        if (table.GetOutputType() == ADXLookupTable::kText) {
            table.GetEntryText(i, &input, text, sizeof text);
            json["rows"].push_back({input, Utf8Text(text)});
        } else {
            table.GetEntry(i, &input, &output);
            json["rows"].push_back({input, output});
        }
    }
    return json;
}

Json NodesJson(const ADXMacro& macro) {
    Json nodes = Json::array();
    ADXMacroNode node;
    for (std::uint32_t i = 0; i < macro.GetNodeCount(); ++i) {
        macro.GetNode(i, &node);
        nodes.push_back({{"command", IdOf(node.command)}, {"flags", node.flags}, {"repeatcount", node.repeatcount}});
    }
    return nodes;
}

void AddCommandFields(Json& json, const ADXObject& object) {
    switch (object.GetType()) {
        case kTypeSendCommand: {
            const auto& send = static_cast<const ADXCSendCommand&>(object);
            json["bytes"] = BytesText(send.bytestring(), send.size());
            json["reply"] = (send.flags & 1) != 0;
            json["replysize"] = send.replysize;
            json["replytimeout"] = send.replytimeout;
            json["packetoffset"] = send.packetoffset;
            json["packetsize"] = send.packetsize;
            break;
        }
        case kType160BaudListen:
            json["packetsize"] = static_cast<const ADXC160BaudListen&>(object).packetsize;
            break;
        case kTypeListenSilence: {
            const auto& silence = static_cast<const ADXCListenSilence&>(object);
            json["silencelen"] = silence.silencelen;
            json["totaltimeout"] = silence.totaltimeout;
            break;
        }
        case kTypeListenChatter: {
            const auto& chatter = static_cast<const ADXCListenChatter&>(object);
            json["bytes"] = BytesText(chatter.bytestring(), chatter.size());
            json["listentimeout"] = chatter.listentimeout;
            break;
        }
        case kTypeTrigger:
            json["triggertype"] = static_cast<const ADXCTrigger&>(object).triggertype;
            break;
        case kTypeMacro:
            json["repeatcount"] = static_cast<const ADXMacro&>(object).repeatcount;
            json["nodes"] = NodesJson(static_cast<const ADXMacro&>(object));
            break;
        default:
            break;
    }
}

template <class View>
Json ItemsJson(const View& view) {
    Json items = Json::array();
    for (std::uint32_t i = 0; i < view.GetEntryCount(); ++i)
        items.push_back(IdOf(view.GetEntry(i)->item));
    return items;
}

void AddViewFields(Json& json, const ADXObject& object) {
    switch (object.GetType()) {
        case kTypeListView:
            json["items"] = ItemsJson(static_cast<const ADXListView&>(object));
            break;
        case kTypeDashboard:
            json["items"] = ItemsJson(static_cast<const ADXDashboard&>(object));
            break;
        case kTypeMonitor:
            json["items"] = ItemsJson(static_cast<const ADXMonitor&>(object));
            break;
        case kTypeHistogram: {
            const auto& grid = static_cast<const ADXHistogram&>(object);
            json["rows"] = grid.GetRows();
            json["cols"] = grid.GetCols();
            json["x"] = IdOf(grid.GetX());
            json["y"] = IdOf(grid.GetY());
            json["z"] = IdOf(grid.GetZ());
            break;
        }
        default:
            break;
    }
}

Json ObjectJson(const ADXDefinition& definition, const ADXObject& object) {
    if (object.GetType() == kTypeValue) return ValueJson(definition, static_cast<const ADXValue&>(object));
    if (object.GetType() == kTypeBitmask) return BitmaskJson(definition, static_cast<const ADXBitmask&>(object));
    if (object.GetType() == kTypeLookupTable) return TableJson(static_cast<const ADXLookupTable&>(object));
    Json json = BaseJson(object);
    AddCommandFields(json, object);
    AddViewFields(json, object);
    return json;
}

}  // namespace

nlohmann::ordered_json HeaderJson(const ADXDefinition& definition) {
    return {{"userversion", TextJson(definition.UserVersion())},
            {"author", TextJson(definition.Author())},
            {"desc", TextJson(definition.Desc())},
            {"baud", definition.baud},
            {"echo", (definition.flags & 1) != 0},
            {"connectcmd", IdOf(definition.connectcmd)},
            {"monitorcmd", IdOf(definition.monitorcmd)},
            {"disconnectcmd", IdOf(definition.disconnectcmd)}};
}

nlohmann::ordered_json DefinitionJson(const ADXDefinition& definition) {
    Json json;
    json["header"] = HeaderJson(definition);
    for (const NamedKind& kind : NamedKinds())
        json[kind.key] = Json::array();
    for (const auto& object : definition.Objects()) {
        if (const NamedKind* kind = KindOfType(object->GetType()))
            json[kind->key].push_back(ObjectJson(definition, *object));
    }
    return json;
}

}  // namespace corvex
