// Loading, saving, importing and editing the definition.
#pragma once

#include <string>

#include "session/window/QuietWork.h"

namespace corvex {

class Desktop;

// Main thread. What changes the definition waits until no worker runs; see QuietWork.
class DefinitionCommands {
public:
    explicit DefinitionCommands(Desktop& desktop) : desktop_(desktop), quiet_(desktop) {}

    void LoadDefinition(const std::string& path);
    void ImportDefinition(const std::string& path);

    void LoadCommand();
    void SaveCommand();
    void SaveAsCommand();
    void ImportCommand();
    void EditCommand();
    void NewCommand();

private:
    void LoadNow(const std::string& path);
    void ImportNow(const std::string& path);
    // All three: false when it did not come to it, of which the user knows.
    bool SaveAs();
    bool Write(const std::string& path);
    bool Edit(char* path);
    void RefreshPages();

    Desktop& desktop_;
    QuietWork quiet_;
};

}  // namespace corvex
