#include "files/adx/LinkPass.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "definition/ADXDashboard.h"
#include "definition/ADXHistogram.h"
#include "definition/ADXListView.h"
#include "definition/ADXLookupTable.h"
#include "definition/ADXMacro.h"
#include "definition/ADXMonitor.h"
#include "definition/ADXValue.h"

namespace corvex {
namespace {

// Sorted rather than hashed: hashes come from the file, and no file can make a sorted search slow. Equal keys keep
// list order, so the first match of the list is the first found.
template <class Key>
class Index {
public:
    void Add(Key key, ADXObject* object) { entries_.emplace_back(std::move(key), object); }
    void Sort() {
        std::stable_sort(entries_.begin(), entries_.end(),
                         [](const Entry& a, const Entry& b) { return a.first < b.first; });
    }
    ADXObject* Find(const Key& key) const {
        const auto found = std::lower_bound(entries_.begin(), entries_.end(), key,
                                            [](const Entry& entry, const Key& sought) { return entry.first < sought; });
        return found != entries_.end() && found->first == key ? found->second : nullptr;
    }

private:
    using Entry = std::pair<Key, ADXObject*>;
    std::vector<Entry> entries_;
};

class LinkPass {
public:
    explicit LinkPass(ADXDefinition& definition);

    void Resolve(ADXObject& object) const;
    ADXObject* ById(const char* id) const { return *id == '\0' ? nullptr : ids_.Find(id); }

private:
    ADXObject* ByHash(std::uint32_t hash) const { return hash == 0 ? nullptr : hashes_.Find(hash); }
    void ResolveValue(ADXValue& value) const;
    void ResolveListView(ADXListView& view) const;
    void ResolveMacro(ADXMacro& macro) const;
    void ResolveHistogram(ADXHistogram& histogram) const;
    void ResolveDashboard(ADXDashboard& dashboard) const;
    void ResolveMonitor(ADXMonitor& monitor) const;

    Index<std::uint32_t> hashes_;
    Index<std::string> ids_;
};

LinkPass::LinkPass(ADXDefinition& definition) {
    for (const auto& object : definition.Objects()) {
        if (object == nullptr) continue;
        char id[ADXObject::kIdLength + 1];
        object->GetId(id, sizeof id);
        hashes_.Add(object->GetIdHash(), object.get());
        ids_.Add(id, object.get());
    }
    hashes_.Sort();
    ids_.Sort();
}

void LinkPass::Resolve(ADXObject& object) const {
    if (auto* value = As<ADXValue>(&object)) return ResolveValue(*value);
    if (auto* view = As<ADXListView>(&object)) return ResolveListView(*view);
    if (auto* macro = As<ADXMacro>(&object)) return ResolveMacro(*macro);
    if (auto* histogram = As<ADXHistogram>(&object)) return ResolveHistogram(*histogram);
    if (auto* dashboard = As<ADXDashboard>(&object)) return ResolveDashboard(*dashboard);
    if (auto* monitor = As<ADXMonitor>(&object)) return ResolveMonitor(*monitor);
}

void LinkPass::ResolveValue(ADXValue& value) const {
    if (auto* found = As<ADXLookupTable>(ByHash(value.lookupidhash))) value.lookup = found;
}

void LinkPass::ResolveListView(ADXListView& view) const {
    for (std::uint32_t i = 0; i < view.GetEntryCount(); ++i) {
        ADXLVENTRY& entry = *view.GetEntry(i);
        if (entry.IsItem()) entry.item = ByHash(entry.itemidhash);
    }
}

void LinkPass::ResolveMacro(ADXMacro& macro) const {
    for (std::uint32_t i = 0; i < macro.GetNodeCount(); ++i) {
        ADXMacroNode node;
        macro.GetNode(i, &node);
        node.command = ById(node.commandid);
        macro.SetNode(i, &node);
    }
}

void LinkPass::ResolveHistogram(ADXHistogram& histogram) const {
    histogram.SetX(ByHash(histogram.xidhash));
    histogram.SetY(ByHash(histogram.yidhash));
    histogram.SetZ(ByHash(histogram.zidhash));
}

void LinkPass::ResolveDashboard(ADXDashboard& dashboard) const {
    for (std::uint32_t i = 0; i < dashboard.GetEntryCount(); ++i) {
        ADXDGENTRY& entry = *dashboard.GetEntry(i);
        entry.item = ByHash(entry.itemidhash);
    }
}

void LinkPass::ResolveMonitor(ADXMonitor& monitor) const {
    for (std::uint32_t i = 0; i < monitor.GetEntryCount();) {
        ADXMONSERIES& series = *monitor.GetEntry(i);
        series.item = ByHash(series.itemidhash);
        if (series.item == nullptr) {
            monitor.RemoveEntry(i);
        } else {
            ++i;
        }
    }
}

}  // namespace

void ResolveLinks(ADXDefinition& definition, const HeaderWords& header) {
    const LinkPass pass(definition);
    for (const auto& object : definition.Objects()) {
        if (object != nullptr) pass.Resolve(*object);
    }
    definition.monitorcmd = pass.ById(header.monitorcmd.text);
    definition.connectcmd = pass.ById(header.connectcmd.text);
    definition.disconnectcmd = pass.ById(header.disconnectcmd.text);
}

}  // namespace corvex
