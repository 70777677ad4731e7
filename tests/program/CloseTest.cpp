#include <algorithm>
#include <random>

#include "tests/program/ProgramTest.h"
#include "tools/driver/LogFiles.h"
#include "tools/driver/ProgramStates.h"

namespace corvex::test {
namespace {

class Close : public ProgramTest {};

// By the cross or by Exit; all is in order afterwards.
TEST_F(Close, WorksAtAnyMoment) {
    folder.Files().Put("drive.xdl", MakeEvenLog(3, 100000));
    const std::map<std::string, std::string> kept{{"lastxdlpath", folder.Name("drive.xdl")},
                                                  {"winposx", "50"},
                                                  {"winposy", "40"},
                                                  {"winsizex", "800"},
                                                  {"winsizey", "600"}};
    std::map<std::string, std::string> expected = kept;
    expected.insert({{"lastadxpath", Definition()}, {"comport", TestPort()}, {"loadlastdef", "1"}});
    const auto& states = AllProgramStates();
    std::mt19937 random(20261121);
    std::vector<std::size_t> order;
    while (order.size() < 50)
        order.push_back(order.size() < states.size() ? order.size() : random() % states.size());
    std::shuffle(order.begin(), order.end(), random);
    for (const std::size_t index : order) {
        SCOPED_TRACE(states[index].name);
        Settle(kept);  // without loadlastdef, which the program must have added at the end
        Operator person(folder.Path(), OwnDesktop());
        states[index].enter(person);
        if (random() % 4 == 0) {
            person.Window().Send(kExit);
        } else {
            person.Window().Close();
        }
        EXPECT_EQ(person.WaitForExit(), std::optional<DWORD>(0));
        EXPECT_EQ(CountProcessesOf(folder.Program()), 0);
        EXPECT_EQ(folder.Settings(), expected);
        if (HasFailure()) return;
    }
}

}  // namespace
}  // namespace corvex::test
