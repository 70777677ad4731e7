// Which replies a scan is there for.
#pragma once

#include <vector>

namespace corvex {

class ADXDefinition;
class ADXObject;

// The commands that bring packets, of all that the monitor command runs, macros within macros included; each once, in
// the order they are first met. Without a monitor command those of the connect command.
std::vector<const ADXObject*> PolledCommands(const ADXDefinition& definition);

}  // namespace corvex
