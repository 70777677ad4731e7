#include "apps/cli/Commands.h"
#include "apps/cli/PlayRun.h"

namespace corvex {

ExitCode RunPlay(const PlayOptions& options, std::ostream& out, std::ostream& err) {
    return PlayRun(options, out, err).Run();
}

}  // namespace corvex
