#include "apps/cli/DefinitionJson.h"

#include <nlohmann/json.hpp>
#include <string>

#include "apps/cli/DefinitionText.h"
#include "checking/EquationFacts.h"
#include "export/DefinitionWalk.h"
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

void AddField(Json& json, const ADXDefinition& definition, const ADXItem& item) {
    json["command"] = IdOfHash(definition, item.parentcmdidhash);
    json["packetoffset"] = item.packetoffset;
    json["sizeinbits"] = item.sizeinbits;
    json["lowbytefirst"] = item.IsLowByteFirst();
}

Json RowsJson(const ADXLookupTable& table) {
    Json rows = Json::array();
    for (std::uint32_t i = 0; i < table.GetEntryCount(); ++i) {
        float input = 0.0F;
        float output = 0.0F;
        char text[1024] = {};
        if (table.GetOutputType() == ADXLookupTable::kText) {
            table.GetEntryText(i, &input, text, sizeof text);
            rows.push_back({input, Utf8Text(text)});
        } else {
            table.GetEntry(i, &input, &output);
            rows.push_back({input, output});
        }
    }
    return rows;
}

Json NodesJson(const ADXMacro& macro) {
    Json nodes = Json::array();
    for (const ADXMacroNode& node : macro.Nodes()) {
        nodes.push_back({{"command", IdOf(node.command)}, {"flags", node.flags}, {"repeatcount", node.repeatcount}});
    }
    return nodes;
}

template <class View>
Json ItemsJson(const View& view) {
    Json items = Json::array();
    for (std::uint32_t i = 0; i < view.GetEntryCount(); ++i)
        items.push_back(IdOf(view.GetEntry(i)->item));
    return items;
}

// One entry for each object, in the array of its kind.
class JsonSink {
public:
    JsonSink(const ADXDefinition& definition, Json& json) : definition_(definition), json_(json) {}

    void Add(const ADXCSendCommand& command) {
        Json& json = Begin(command);
        json["bytes"] = BytesText(command.bytestring(), command.size());
        json["reply"] = command.ExpectsReply();
        json["replysize"] = command.replysize;
        json["replytimeout"] = command.replytimeout;
        json["packetoffset"] = command.packetoffset;
        json["packetsize"] = command.packetsize;
    }
    void Add(const ADXC160BaudListen& command) { Begin(command)["packetsize"] = command.packetsize; }
    void Add(const ADXCListenSilence& command) {
        Json& json = Begin(command);
        json["silencelen"] = command.silencelen;
        json["totaltimeout"] = command.totaltimeout;
    }
    void Add(const ADXCListenChatter& command) {
        Json& json = Begin(command);
        json["bytes"] = BytesText(command.bytestring(), command.size());
        json["listentimeout"] = command.listentimeout;
    }
    void Add(const ADXCTrigger& command) { Begin(command)["triggertype"] = command.triggertype; }
    void Add(const ADXMacro& macro) {
        Json& json = Begin(macro);
        json["repeatcount"] = macro.repeatcount;
        json["nodes"] = NodesJson(macro);
    }

    void Add(const ADXValue& value) {
        Json& json = Begin(value);
        json["units"] = Utf8Text(value.Units());
        json["equation"] = Utf8Text(WholeEquation(value));
        AddField(json, definition_, value);
        json["signed"] = value.IsSigned();
        json["range"] = {value.rangelow, value.rangehigh};
        json["alarmlow"] = value.HasLowAlarm() ? Json(value.alarmlow) : Json();
        json["alarmhigh"] = value.HasHighAlarm() ? Json(value.alarmhigh) : Json();
        json["outputtype"] = value.outputtype;
        json["digcount"] = value.digcount;
        json["table"] = IdOf(value.lookup);
        for (const ADXVar& var : value.Vars()) {
            if (var.IsLink()) json["links"][std::string(1, var.varid)] = IdOfHash(definition_, var.linkidhash);
        }
    }
    void Add(const ADXBitmask& bit) {
        Json& json = Begin(bit);
        json["truestring"] = Utf8Text(bit.TrueString());
        json["falsestring"] = Utf8Text(bit.FalseString());
        AddField(json, definition_, bit);
        json["operand"] = bit.operand;
        json["bitop"] = bit.bitop == ADXBitmask::kXor ? "XOR" : "AND";
        json["result"] = bit.result;
        json["alarmonset"] = bit.HasAlarmOnSet();
        json["alarmonnotset"] = bit.HasAlarmOnNotSet();
    }
    void Add(const ADXLookupTable& table) {
        Json& json = Begin(table);
        json["outputtype"] = table.GetOutputType();
        json["lookupmode"] = table.GetLookupMode();
        json["rows"] = RowsJson(table);
    }

    void Add(const ADXListView& view) { Begin(view)["items"] = ItemsJson(view); }
    void Add(const ADXDashboard& dash) { Begin(dash)["items"] = ItemsJson(dash); }
    void Add(const ADXHistogram& grid) {
        Json& json = Begin(grid);
        json["rows"] = grid.GetRows();
        json["cols"] = grid.GetCols();
        json["x"] = IdOf(grid.GetX());
        json["y"] = IdOf(grid.GetY());
        json["z"] = IdOf(grid.GetZ());
    }
    void Add(const ADXMonitor& monitor) { Begin(monitor)["items"] = ItemsJson(monitor); }

private:
    Json& Begin(const ADXObject& object) {
        Json& json =
            json_[KindOfType(object.GetType())->key].emplace_back(Json{{"id", Utf8Text(object.Id())},
                                                                       {"idhash", HashText(object.GetIdHash())},
                                                                       {"title", Utf8Text(object.Title())}});
        if (*object.Desc() != '\0') json["desc"] = Utf8Text(object.Desc());
        return json;
    }

    const ADXDefinition& definition_;
    Json& json_;
};

}  // namespace

nlohmann::ordered_json HeaderJson(const ADXDefinition& definition) {
    return {{"userversion", TextJson(definition.UserVersion())},
            {"author", TextJson(definition.Author())},
            {"desc", TextJson(definition.Desc())},
            {"baud", definition.baud},
            {"echo", definition.HasEcho()},
            {"connectcmd", IdOf(definition.connectcmd)},
            {"monitorcmd", IdOf(definition.monitorcmd)},
            {"disconnectcmd", IdOf(definition.disconnectcmd)}};
}

nlohmann::ordered_json DefinitionJson(const ADXDefinition& definition) {
    Json json;
    json["header"] = HeaderJson(definition);
    for (const NamedKind& kind : NamedKinds())
        json[kind.key] = Json::array();
    JsonSink sink(definition, json);
    WalkObjects(definition, sink);
    return json;
}

}  // namespace corvex
