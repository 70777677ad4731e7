// How long a reply takes to be seen.
#pragma once

namespace corvex::bench {

// From a good reply handed to the session's callback, on a thread of its own as in a scan, until the last of the twelve
// gauges on show has been painted; with and without analog ones among them. Every gauge has a new value in every reply.
void PrintReplyToPaint();

}  // namespace corvex::bench
