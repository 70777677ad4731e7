// What corvex-cli can be told to do, one function for each of its commands.
#pragma once

#include <iosfwd>

#include "apps/cli/ExitCode.h"
#include "apps/cli/Options.h"
#include "platform/PortList.h"

namespace corvex {

// All of them: once, on the main thread. The streams outlive the call. kExitFailure comes with a line on `err`.

// check: what the author of a definition must know. kExitSuccess when the file loads, whatever is found in it; with
// `strict`, kExitFailure for errors and warnings.
ExitCode RunCheck(const CheckOptions& options, std::ostream& out, std::ostream& err);

// convert: loads a definition, also a legacy one (.ads), and saves it in the present form. The new file takes the place
// of `output` only when it is whole, so `output` may be the input itself.
ExitCode RunConvert(const ConvertOptions& options, std::ostream& out, std::ostream& err);

// decode: the values of a log as CSV.
ExitCode RunDecode(const DecodeOptions& options, std::ostream& out, std::ostream& err);

// doctor: listens to a line, asks, and gives one verdict. kExitFailure for any but a good one.
ExitCode RunDoctor(const DoctorOptions& options, std::ostream& out, std::ostream& err);

// eval: one equation, evaluated as a value does it. The result with "%.17g"; what makes it doubtful is told on `err`.
// An equation that does not parse: kExitFailure.
ExitCode RunEval(const EvalOptions& options, std::ostream& out, std::ostream& err);

// hash: the hashes of id texts. An id holds 15 characters; a longer text is hashed as the id that it would become,
// which is told on `err`.
ExitCode RunHash(const HashOptions& options, std::ostream& out, std::ostream& err);

// histogram: a definition's histograms, filled from a log.
ExitCode RunHistogram(const HistogramOptions& options, std::ostream& out, std::ostream& err);

// info: what a log holds, without a word written to it.
ExitCode RunInfo(const InfoOptions& options, std::ostream& out, std::ostream& err);

// list: what a definition holds.
ExitCode RunList(const ListOptions& options, std::ostream& out, std::ostream& err);

// play: plays a log and shows its values as a scan does.
ExitCode RunPlay(const PlayOptions& options, std::ostream& out, std::ostream& err);

// ports: the serial ports there are and what hangs on them. Opens none. Success when there is none, too.
ExitCode RunPorts(const PortsOptions& options, std::ostream& out, std::ostream& err, IPortList& list = SystemPorts());

// repair: copies every whole record of a log into a finished one. kExitFailure when anything is left out.
ExitCode RunRepair(const RepairOptions& options, std::ostream& out, std::ostream& err);

// scan: runs the scan of a definition and shows its values as they come. kExitFailure when the line never answered, or
// was lost and had not come back at the end, or not all could be recorded.
ExitCode RunScan(const ScanOptions& options, std::ostream& out, std::ostream& err);

}  // namespace corvex
