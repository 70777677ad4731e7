// The whole load of a definition against the parse of its text alone, in the same run.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "bench/files/GeneratedAdx.h"
#include "definition/ADXDefinition.h"
#include "files/adx/ADXParser.h"
#include "files/xml/SAXParser.h"

namespace corvex {
namespace {

constexpr std::size_t kDefinitionSize = 2'000'000;
constexpr int kRounds = 40;

// Takes every event and does nothing with it.
class SilentCallback final : public ISAXCallback {
public:
    std::int32_t StartDocument() override { return 0; }
    std::int32_t EndDocument() override { return 0; }
    std::int32_t StartElement(const char16_t*, std::uint32_t, const SAXAttribute*, std::uint32_t) override { return 0; }
    std::int32_t Characters(const char16_t*, std::uint32_t, std::int32_t) override { return 0; }
    std::int32_t EndElement(const char16_t*, std::uint32_t) override { return 0; }
    std::int32_t StartCDATA() override { return 0; }
    std::int32_t CDATA(const char16_t*, std::uint32_t, std::int32_t) override { return 0; }
    std::int32_t EndCDATA() override { return 0; }
    std::int32_t Error(std::int32_t, const char*) override { return 0; }
};

void ParseAlone(const std::string& text) {
    SAXParser parser;
    SilentCallback callback;
    parser.SetCallback(&callback);
    benchmark::DoNotOptimize(parser.ParseMemory(text.data(), text.size()));
}

std::uint32_t LoadWhole(const std::string& text) {
    ADXDefinition definition;
    ADXParser parser;
    if (parser.ParseMemory(text.data(), text.size(), definition) == 0) {
        std::fprintf(stderr, "load failed: %s\n", parser.GetError());
        std::exit(1);
    }
    return definition.GetCount();
}

// Of the processor, so that what else runs on the machine does not count.
double Seconds(const std::function<void()>& work) {
    const std::clock_t start = std::clock();
    work();
    return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
}

double Median(std::vector<double> times) {
    std::nth_element(times.begin(), times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2), times.end());
    return times[times.size() / 2];
}

void Compare(std::size_t size) {
    const std::string text = GenerateAdx(size);
    const std::uint32_t objects = LoadWhole(text);
    std::vector<double> parse, load;
    for (int round = 0; round < kRounds; ++round) {
        parse.push_back(Seconds([&] { ParseAlone(text); }));
        load.push_back(Seconds([&] { benchmark::DoNotOptimize(LoadWhole(text)); }));
    }
    std::printf(
        "load of %.2f MB, %u objects, median of %d: whole %.2f ms, parse alone %.2f ms; whole against parse "
        "(at most 3): %.2f\n",
        static_cast<double>(text.size()) / 1e6, objects, kRounds, Median(load) * 1e3, Median(parse) * 1e3,
        Median(load) / Median(parse));
}

}  // namespace
}  // namespace corvex

int main() {
    corvex::Compare(corvex::kDefinitionSize / 8);
    corvex::Compare(corvex::kDefinitionSize);
}
