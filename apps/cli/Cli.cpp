#include "apps/cli/Cli.h"

#include <ostream>
#include <utility>
#include <variant>

#include "apps/cli/Arguments.h"
#include "apps/cli/Commands.h"
#include "apps/cli/WriteFailure.h"
#include "platform/Terminal.h"

namespace corvex {

namespace {

// One name for what each command has.
struct CommandRunner {
    std::ostream& out;
    std::ostream& err;
    ExitCode operator()(const CheckOptions& options) const { return RunCheck(options, out, err); }
    ExitCode operator()(const ListOptions& options) const { return RunList(options, out, err); }
    ExitCode operator()(const HashOptions& options) const { return RunHash(options, out, err); }
    ExitCode operator()(const EvalOptions& options) const { return RunEval(options, out, err); }
    ExitCode operator()(const ConvertOptions& options) const { return RunConvert(options, out, err); }
    ExitCode operator()(const ScanOptions& options) const { return RunScan(options, out, err); }
    ExitCode operator()(const InfoOptions& options) const { return RunInfo(options, out, err); }
    ExitCode operator()(const DecodeOptions& options) const { return RunDecode(options, out, err); }
    ExitCode operator()(const PlayOptions& options) const { return RunPlay(options, out, err); }
    ExitCode operator()(const HistogramOptions& options) const { return RunHistogram(options, out, err); }
    ExitCode operator()(const DoctorOptions& options) const { return RunDoctor(options, out, err); }
    ExitCode operator()(const PortsOptions& options) const { return RunPorts(options, out, err); }
    ExitCode operator()(const RepairOptions& options) const { return RunRepair(options, out, err); }
};

}  // namespace

ExitCode RunCli(std::vector<std::string> args, std::ostream& out, std::ostream& err) {
    const auto parsed = ParseArguments(std::move(args), out, err);
    if (const ExitCode* code = std::get_if<ExitCode>(&parsed)) return *code;
    const ExitCode code = std::visit(CommandRunner{out, err}, std::get<Options>(parsed));
    out.flush();
    // Whoever read it had enough, as head has.
    if (code == kExitSuccess && !out && !OutputReaderIsGone()) {
        err << "corvex-cli: the output" << CannotBeWritten(ReasonNotWritten("")) << '\n';
        return kExitFailure;
    }
    return code;
}

}  // namespace corvex
