// Descriptors 0 to 2, which every program writes text to, whoever holds them.
#pragma once

namespace corvex {

// A program may be started with its input, output or error stream closed. The next file it opens then gets that
// descriptor, and a log is overwritten with text. Puts the null device where nothing is: what is written there is gone,
// and a read ends at once. Where the null device can't be opened either, nothing changes. The first call of a main,
// before any thread runs and any file is open.
void HoldStandardStreams();

}  // namespace corvex
