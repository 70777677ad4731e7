#include "bench/cli/PlainDecode.h"

#include <cstdio>

#include "tests/support/TextualEvaluator.h"

namespace corvex {

namespace {

std::uint32_t WordAt(const unsigned char* bytes) {
    return bytes[0] | bytes[1] << 8U | bytes[2] << 16U | static_cast<std::uint32_t>(bytes[3]) << 24U;
}

void WriteHeader(std::FILE* csv, const std::vector<PlainValue>& values) {
    std::fprintf(csv, "Time (s)");
    for (const PlainValue& value : values)
        std::fprintf(csv, ",%s", value.title.c_str());
    std::fprintf(csv, "\n");
}

}  // namespace

std::uint32_t DecodePlainly(const std::string& log, const std::vector<PlainValue>& values, const std::string& output,
                            std::uint32_t records) {
    std::FILE* const in = std::fopen(log.c_str(), "rb");
    if (in == nullptr) return 0;
    std::FILE* const csv = std::fopen(output.c_str(), "wb");
    if (csv == nullptr) {
        std::fclose(in);
        return 0;
    }
    std::vector<testing::TextualEvaluator> evaluators(values.size());
    for (std::size_t i = 0; i < values.size(); ++i)
        evaluators[i].Parse(values[i].equation);
    WriteHeader(csv, values);

    unsigned char head[77] = {};
    std::uint32_t done = 0;
    if (std::fread(head, 1, sizeof head, in) == sizeof head) {
        std::vector<unsigned char> data(WordAt(head + 44 + 24));
        std::fseek(in, static_cast<long>(WordAt(head + 4)), SEEK_SET);
        while (done < records && std::fread(head, 1, 12, in) == 12 &&
               std::fread(data.data(), 1, data.size(), in) == data.size()) {
            std::fprintf(csv, "%.3f", WordAt(head + 4) / 1000.0);
            for (std::size_t i = 0; i < values.size(); ++i) {
                const unsigned char* const field = data.data() + values[i].offset;
                evaluators[i].SetVariable('X', values[i].twoBytes ? field[0] * 256 + field[1] : field[0]);
                std::fprintf(csv, ",%.17g", evaluators[i].Evaluate());
            }
            std::fprintf(csv, "\n");
            ++done;
        }
    }
    std::fclose(in);
    return std::fclose(csv) == 0 ? done : 0;
}

}  // namespace corvex
