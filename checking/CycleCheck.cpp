#include <algorithm>
#include <string>
#include <unordered_map>
#include <vector>

#include "checking/CheckContext.h"
#include "definition/ADXMacro.h"
#include "definition/ADXValue.h"
#include "export/text/ObjectNames.h"
#include "export/text/TextFormat.h"

namespace corvex {

namespace {

// At 12 polls a second this is a day.
constexpr double kManyRuns = 1e6;

using Targets = std::vector<const ADXObject*>;

Targets TargetsOf(const CheckContext& context, const ADXObject& object) {
    Targets targets;
    if (const auto* macro = As<ADXMacro>(&object)) {
        for (const ADXMacroNode& node : macro->Nodes()) {
            if (const auto* target = As<ADXMacro>(node.command)) targets.push_back(target);
        }
    } else if (const auto* value = As<ADXValue>(&object)) {
        for (const ADXVar& var : value->Vars()) {
            if (!var.IsLink()) continue;
            if (const auto* target = As<ADXValue>(context.Find(var.linkidhash))) targets.push_back(target);
        }
    }
    return targets;
}

// A depth-first walk with a stack of its own: a definition decides how deep it goes.
class CycleWalk {
public:
    explicit CycleWalk(CheckContext& context) : context_(context) {}

    void From(const ADXObject& start) {
        if (state_[&start] != State::kNew) return;
        Push(start);
        while (!path_.empty()) {
            Step& step = path_.back();
            if (step.next == step.targets.size()) {
                Pop();
                continue;
            }
            const ADXObject& target = *step.targets[step.next++];
            const State state = state_[&target];
            if (state == State::kNew) Push(target);
            if (state == State::kOnPath) Report(target);
            if (state == State::kDone) step.depth = std::max(step.depth, depth_[&target] + 1);
        }
    }

private:
    enum class State { kNew, kOnPath, kDone };
    struct Step {
        const ADXObject* object;
        Targets targets;
        std::size_t next = 0;
        unsigned depth = 0;  // links below this object
    };

    void Push(const ADXObject& object) {
        state_[&object] = State::kOnPath;
        path_.push_back({&object, TargetsOf(context_, object), 0, 0});
    }

    void Pop() {
        const Step step = path_.back();
        path_.pop_back();
        if (const auto* macro = As<ADXMacro>(step.object)) CountRuns(*macro);
        state_[step.object] = State::kDone;
        depth_[step.object] = step.depth;
        if (!path_.empty()) path_.back().depth = std::max(path_.back().depth, step.depth + 1);
        if (step.object->GetType() == kTypeValue && step.depth == ADXValue::kLinkDepth + 1)
            context_.Warn(
                step.object, "deep-link",
                Printf("links through more than %u values; the rest of the chain is cut", ADXValue::kLinkDepth));
    }

    // Every macro in it has been counted by now, but for one that runs itself. Told of the innermost that goes too far.
    void CountRuns(const ADXMacro& macro) {
        double once = 0.0, most = 0.0;
        for (const ADXMacroNode& node : macro.Nodes()) {
            const auto inner = runs_.find(node.command);
            const double runs = inner == runs_.end() ? 1.0 : inner->second;
            once += runs * node.repeatcount;
            most = std::max(most, runs);
        }
        const double all = once * macro.repeatcount;
        runs_[&macro] = all;
        if (all > kManyRuns && most <= kManyRuns)
            context_.Warn(&macro, "many-runs",
                          Printf("runs %.3g commands before it ends: its repeat counts multiply", all));
    }

    void Report(const ADXObject& target) {
        std::string path;
        bool inside = false;
        for (const Step& step : path_) {
            inside = inside || step.object == &target;
            if (inside) path += ShortNameOf(*step.object) + " -> ";
        }
        path += ShortNameOf(target);
        const char* effect = target.GetType() == kTypeMacro ? "it fails when it is run" : "it is cut when computed";
        context_.Error(&target, "cycle", Printf("refers to itself: %s; %s", path.c_str(), effect));
    }

    CheckContext& context_;
    std::unordered_map<const ADXObject*, State> state_;
    std::unordered_map<const ADXObject*, unsigned> depth_;
    std::unordered_map<const ADXObject*, double> runs_;  // commands that a macro runs
    std::vector<Step> path_;
};

}  // namespace

void CheckCycles(CheckContext& context) {
    CycleWalk walk(context);
    for (const auto& object : context.Definition().Objects())
        walk.From(*object);
}

}  // namespace corvex
