// What decoding a long log costs: corvex-cli decode beside a plainly written program with the textual evaluator. Prints
// rows and bytes a second of both and their ratio; exit 1 when the ratio is not what it has to be, or when the two do
// not agree.

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>
#include <vector>

#include "apps/cli/Cli.h"
#include "bench/cli/PlainDecode.h"
#include "bench/logging/GeneratedLog.h"
#include "definition/ADXObject.h"

namespace {

using corvex::PlainValue;

constexpr double kWantedRatio = 3.0;
constexpr std::uint32_t kRecords = 1'000'000, kPlainRecords = 20'000, kComparedRows = 500;
constexpr std::uint32_t kReplySize = 63, kPacketOffset = 3, kValues = 60;
constexpr std::uint32_t kRecordBytes = 12 + kReplySize;
constexpr int kPlainRounds = 3;

constexpr const char* kEquations[] = {"(X*0.75)-40", "X*0.0048828125", "(X/255)*100", "X",          "((X-40)*1.8)+32",
                                      "X*25",        "(X*0.369)+10.3", "X/2.5",       "(X*2.7)-90", "X*0.351562"};

std::vector<PlainValue> Values() {
    std::vector<PlainValue> values;
    for (std::uint32_t i = 0; i < kValues; ++i)
        values.push_back({"Value " + std::to_string(i), kEquations[i % std::size(kEquations)],
                          kPacketOffset + i % (kReplySize - kPacketOffset - 2), i % 4 == 3});
    return values;
}

void WriteDefinition(const std::string& path, const std::vector<PlainValue>& values) {
    std::ofstream file(path, std::ios::binary);
    file << "<ADXFORMAT version=\"0.50\" />\n<ADXHEADER><baud>8192</baud></ADXHEADER>\n"
            "<ADXCSENDCOMMAND id=\"POLL\" title=\"Poll\" flags=\"0x1\"><replysize>"
         << kReplySize << "</replysize><packetoffset>" << kPacketOffset << "</packetoffset><packetsize>"
         << kReplySize - kPacketOffset << "</packetsize></ADXCSENDCOMMAND>\n";
    for (std::size_t i = 0; i < values.size(); ++i) {
        char offset[16];
        std::snprintf(offset, sizeof offset, "0x%.2X", static_cast<unsigned>(values[i].offset - kPacketOffset));
        file << "<ADXVALUE id=\"V" << i << "\" title=\"" << values[i].title << "\"><packetoffset>" << offset
             << "</packetoffset><sizeinbits>" << (values[i].twoBytes ? 16 : 8) << "</sizeinbits><MATH equation=\""
             << values[i].equation << "\"><VAR varID=\"X\" type=\"native\" /></MATH></ADXVALUE>\n";
    }
}

struct Speed {
    double seconds = 0.0;
    double rows = 0.0;
    double bytesOut = 0.0;
    double RowsPerSecond() const { return rows / seconds; }
    void Print(const char* name) const {
        std::printf("%-14s %9.0f rows in %7.3f s: %9.0f rows/s, %7.2f MB/s of log, %7.2f MB/s of CSV\n", name, rows,
                    seconds, RowsPerSecond(), RowsPerSecond() * kRecordBytes / 1e6, bytesOut / seconds / 1e6);
    }
};

template <class Work>
Speed Measure(Work work, const std::string& output) {
    Speed speed;
    const auto start = std::chrono::steady_clock::now();
    speed.rows = work();
    speed.seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    speed.bytesOut = static_cast<double>(std::filesystem::file_size(output));
    return speed;
}

// Numbers as they are, not as they are written: one prints 17 digits, the other as many as it takes.
bool SameRow(const std::string& a, const std::string& b) {
    const char* left = a.c_str();
    const char* right = b.c_str();
    for (;;) {
        char *leftEnd = nullptr, *rightEnd = nullptr;
        if (std::strtod(left, &leftEnd) != std::strtod(right, &rightEnd) || *leftEnd != *rightEnd) return false;
        if (*leftEnd != ',') return leftEnd != left && *leftEnd == '\0';
        left = leftEnd + 1;
        right = rightEnd + 1;
    }
}

bool SameRows(const std::string& a, const std::string& b) {
    std::ifstream left(a), right(b);
    std::string leftRow, rightRow;
    if (!std::getline(left, leftRow) || !std::getline(right, rightRow) || leftRow != rightRow) return false;
    for (std::uint32_t i = 0; i < kComparedRows; ++i) {
        if (!std::getline(left, leftRow) || !std::getline(right, rightRow) || !SameRow(leftRow, rightRow)) return false;
    }
    return true;
}

bool Race(const std::string& folder) {
    const std::string log = folder + "/long.xdl", definition = folder + "/long.adx";
    const std::string ours = folder + "/ours.csv", plain = folder + "/plain.csv";
    const std::vector<PlainValue> values = Values();
    WriteDefinition(definition, values);
    const std::string failure = corvex::WriteGeneratedLog(log, kRecords, corvex::HashId("POLL", 4), kReplySize);
    if (!failure.empty()) {
        std::fprintf(stderr, "%s\n", failure.c_str());
        return false;
    }
    Speed plainSpeed;
    for (int i = 0; i < kPlainRounds; ++i) {
        const Speed speed = Measure([&] { return corvex::DecodePlainly(log, values, plain, kPlainRecords); }, plain);
        if (i == 0 || speed.RowsPerSecond() > plainSpeed.RowsPerSecond()) plainSpeed = speed;
    }
    bool good = plainSpeed.rows == kPlainRecords;
    const Speed oursSpeed = Measure(
        [&] {
            good = corvex::RunCli({"decode", "-d", definition, log, "-o", ours}, std::cout, std::cerr) == 0 && good;
            return kRecords;
        },
        ours);
    plainSpeed.Print("plain program");
    oursSpeed.Print("decode");
    const double ratio = oursSpeed.RowsPerSecond() / plainSpeed.RowsPerSecond();
    std::printf("%u values a row; ratio %.1f, wanted %.1f\n", kValues, ratio, kWantedRatio);
    if (!SameRows(ours, plain)) {
        std::fprintf(stderr, "the two do not agree\n");
        return false;
    }
    return good && ratio >= kWantedRatio;
}

}  // namespace

int main() {
    const std::string folder =
        (std::filesystem::temp_directory_path() / ("corvex_decode_bench_" + std::to_string(std::rand()))).string();
    std::filesystem::create_directories(folder);
    const bool good = Race(folder);
    std::filesystem::remove_all(folder);
    return good ? 0 : 1;
}
