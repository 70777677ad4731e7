// What a sample costs on the "Monitors" tab, at the beginning of a drive and after an hour of it.
#pragma once

namespace corvex::bench {

void PrintMonitorCost();

}  // namespace corvex::bench
