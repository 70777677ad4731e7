// Scans of a simulated engine by the real program, with one view or another in front.
#pragma once

#include <vector>

#include "tools/driver/CorvexWindow.h"
#include "tools/driver/EngineHost.h"
#include "tools/driver/ProgramFolder.h"
#include "tools/driver/RunningProgram.h"

namespace corvex::bench {

enum class View { kOutput, kReadouts, kFourAnalog, kList, kHistogram, kSurface, kMonitors };
const char* NameOf(View view);

struct ScanFigures {
    double rate = 0;       // replies per second
    double processor = 0;  // the program's time on a processor as a part of all time, 1 for one that is never idle
    double stolen = 0;     // of all processors' time, by the host; of a paced scan
};

// One program for all scans; the engine begins anew with each. What fails throws std::runtime_error. One thread.
class ViewedScan {
public:
    ViewedScan();
    // Ends the program.
    ~ViewedScan();

    // At the line's pace; the rate is told by the times of the replies.
    ScanFigures Paced(View view);
    // As fast as both ends can; the rate is what the engine has counted.
    ScanFigures Unpaced(View view);

private:
    void Show(View view) const;
    void Begin() const;
    void End() const;
    double ProcessorTime() const;

    test::ProgramFolder folder_;
    test::EngineHost engines_;
    test::RunningProgram program_;
    test::CorvexWindow window_;
};

}  // namespace corvex::bench
