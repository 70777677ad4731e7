#include <exception>
#include <iostream>
#include <new>
#include <string>
#include <vector>

#include "apps/cli/Cli.h"
#include "platform/StandardStreams.h"

int main(int argc, char** argv) {
    corvex::HoldStandardStreams();
    try {
        return corvex::RunCli(std::vector<std::string>(argv + (argc > 0 ? 1 : 0), argv + argc), std::cout, std::cerr);
    } catch (const std::bad_alloc&) {
        std::cerr
            << "corvex-cli: the memory of this machine does not suffice for this; see corvex-cli check for what is "
               "large in the definition\n";
        return corvex::kExitFailure;
    } catch (const std::exception& error) {
        std::cerr << "corvex-cli: " << error.what() << '\n';
        return corvex::kExitFailure;
    }
}
