#include "apps/cli/LogLoss.h"

#include "apps/cli/LogFile.h"
#include "export/text/TextFormat.h"
#include "logging/LogWalk.h"

namespace corvex {

std::string MissingText(const LogHeader& header, std::uint32_t records) {
    if (records >= header.sampleCount) return {};
    return Printf("its header counts %u records, %u are missing", static_cast<unsigned>(header.sampleCount),
                  static_cast<unsigned>(header.sampleCount - records));
}

std::string DamageText(std::uint64_t offset, std::uint64_t left) {
    return Printf("damaged at byte %llu: ", static_cast<unsigned long long>(offset)) +
           Counted(static_cast<std::size_t>(left), "byte") + " from there on not read (see corvex-cli repair)";
}

std::string GapText(std::uint64_t gap) {
    if (gap == 0) return {};
    return Counted(static_cast<std::size_t>(gap), "byte") + " in front of the first record not read";
}

std::string EndText(const LogWalk& walk) {
    if (walk.Result() != kLogEndOfFile)
        return Printf("warning: reading ended at byte %llu: ", static_cast<unsigned long long>(walk.Offset())) +
               LogErrorText(walk.Result());
    if (walk.Left() == 0) return {};
    if (walk.Damaged()) return DamageText(walk.Offset(), walk.Left());
    return "the last " + Counted(static_cast<std::size_t>(walk.Left()), "byte") + " are no whole record";
}

}  // namespace corvex
