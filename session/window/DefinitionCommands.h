// Loading, saving, importing and editing the definition.
#pragma once

#include <cstddef>
#include <functional>
#include <string>

#include "session/window/IdleWork.h"

namespace corvex {

class Desktop;

// Main thread. What changes the definition waits until no worker runs; see IdleWork. What drops it, or edits its file,
// asks first whether a dashboard that was changed is to be saved, and does nothing when the user would rather not.
class DefinitionCommands {
public:
    explicit DefinitionCommands(Desktop& desktop) : desktop_(desktop), quiet_(desktop) {}

    void LoadDefinition(const std::string& path);
    void LoadDefinition(std::nullptr_t) = delete;
    void ImportDefinition(const std::string& path);

    // Asks that question, if there is anything to ask. False when the definition has to stay: the user has said so, a
    // save that he asked for has failed, or he is being asked already.
    [[nodiscard]] bool MayDrop();

    void LoadCommand();
    void SaveCommand();
    void SaveAsCommand();
    void ImportCommand();
    void EditCommand();
    void NewCommand();

private:
    void LoadNow(const std::string& path);
    void ImportNow(const std::string& path);
    bool AskAboutChanges();
    void Drop(const std::function<void()>& work);
    void DropWhenQuiet(const std::function<void()>& work);
    void LoadEdited(const std::string& path);
    bool HasName() const;
    // All three: false when it did not come to it, of which the user knows.
    bool SaveAs();
    bool Write(const std::string& path);
    bool Edit(char* path);

    Desktop& desktop_;
    IdleWork quiet_;
    bool asking_ = false;
};

}  // namespace corvex
