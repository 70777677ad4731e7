// Pictures of the program in each of its states.
#pragma once

#include <string>
#include <vector>

namespace corvex::test {

struct PictureTask {
    std::string folder;  // with a Corvex.exe
    std::string file;    // as the host names it
    int width = 650, height = 500;
    int tab = 0;
    int row = 0;  // of what the Dash or Item Lists tab can show
};

// The states that there are.
std::vector<std::string> PictureStates();
// Brings a newly started program into the state, takes the picture and closes the program. Throws std::runtime_error,
// also for an unknown state.
void TakeStatePicture(const std::string& state, const PictureTask& task);

}  // namespace corvex::test
