#include <limits.h>
#include <unistd.h>

#include "platform/ProgramPlace.h"

namespace corvex {

namespace {

class PosixPlace final : public IProgramPlace {
public:
    std::string FileName(void*) override {
        char name[PATH_MAX];
        const ssize_t length = readlink("/proc/self/exe", name, sizeof name);
        return length > 0 ? std::string(name, static_cast<std::size_t>(length)) : std::string();
    }
    char Separator() override { return '/'; }
    ScreenSize Screen() override { return {1024, 768}; }
};

}  // namespace

IProgramPlace& SystemProgramPlace() {
    static PosixPlace place;
    return place;
}

}  // namespace corvex
