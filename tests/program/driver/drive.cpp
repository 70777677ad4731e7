// corvex-drive: works with Corvex.exe from outside. For ./dev run and tools/shoot.sh, which prepare the folder.
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <string>

#include "tests/program/driver/DemoRun.h"
#include "tests/program/driver/StatePictures.h"

namespace corvex::test {

namespace {

constexpr char kUsage[] =
    "usage: corvex-drive demo FOLDER PICTURES\n"
    "       corvex-drive shoot FOLDER PICTURES STATE|all WIDTH HEIGHT [TAB [ROW]]\n";

void Shoot(char** words, int tab, int row) {
    PictureTask task;
    task.folder = words[2];
    task.width = std::atoi(words[5]);
    task.height = std::atoi(words[6]);
    task.tab = tab;
    task.row = row;
    const std::string wanted = words[4];
    for (const std::string& state : PictureStates()) {
        if (wanted != "all" && wanted != state) continue;
        task.file = std::string(words[3]).append("/").append(state).append("-").append(words[5]).append(".png");
        TakeStatePicture(state, task);
        std::printf("%s\n", task.file.c_str());
        std::fflush(stdout);
    }
}

int Drive(int count, char** words) {
    const std::string command = count > 1 ? words[1] : "";
    if (command == "demo" && count == 4) {
        RunDemo(words[2], words[3]);
    } else if (command == "shoot" && count >= 7 && count <= 9) {
        Shoot(words, count > 7 ? std::atoi(words[7]) : 0, count > 8 ? std::atoi(words[8]) : 0);
    } else {
        std::fputs(kUsage, stderr);
        return 2;
    }
    return 0;
}

}  // namespace

}  // namespace corvex::test

int main(int count, char** words) {
    try {
        return corvex::test::Drive(count, words);
    } catch (const std::exception& error) {
        std::fflush(stdout);
        std::fprintf(stderr, "corvex-drive: %s\n", error.what());
        return 1;
    }
}
