// Time of the processors that the host of a virtual machine gave to others: figures of a run that had much of it
// compare with none.
#pragma once

#include <fstream>
#include <string>

namespace corvex::bench {

class StolenTime {
public:
    // Of all processors' time since this was made, 0 to 1; 0 where the system does not tell it.
    double Share() const {
        const Ticks now = Ticks::Read();
        const double all = now.all - begin_.all;
        return all > 0 ? (now.stolen - begin_.stolen) / all : 0;
    }

private:
    struct Ticks {
        double stolen = 0, all = 0;

        // user, nice, system, idle, iowait, irq, softirq and steal of the Linux that Wine runs on.
        static Ticks Read() {
            constexpr int kKinds = 8;
            std::ifstream stat("Z:/proc/stat");
            std::string name;
            stat >> name;
            Ticks ticks;
            for (int i = 0; i < kKinds && stat >> ticks.stolen; ++i)
                ticks.all += ticks.stolen;
            return ticks;
        }
    };
    Ticks begin_ = Ticks::Read();
};

}  // namespace corvex::bench
