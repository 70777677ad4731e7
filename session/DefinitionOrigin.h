// Where the definition in memory comes from, and so where it may be saved to without a question.
#pragma once

namespace corvex {

// Follows what was done with the definition. One that was read from a file, or written to it, is that file's own, and
// Save writes it there. Any other has no business there: a rest that a failed load left would take the place of what
// could still be mended by hand. Main thread.
class DefinitionOrigin {
public:
    // Whatever comes of it, the definition before is gone.
    void Loaded(bool whole) { kind_ = whole ? Kind::kFile : Kind::kRest; }
    // One that failed has left the definition alone, but it may have no name any more.
    void Imported(bool whole) {
        if (whole || kind_ == Kind::kFile) kind_ = Kind::kNoFile;
    }
    void Saved() { kind_ = Kind::kFile; }
    // The file holds another definition from now on, which is still to be loaded.
    void FileEdited() {
        if (kind_ == Kind::kFile) kind_ = Kind::kOvertaken;
    }

    // The last known name is that of its own file.
    bool HasFile() const { return kind_ == Kind::kFile; }
    // It is whole and in no file: an editor of files has to wait until it is.
    bool IsUnsaved() const { return kind_ == Kind::kNoFile; }

private:
    enum class Kind {
        kNothing,    // none was loaded yet
        kFile,       // read from its file, or written to it
        kRest,       // of a load that failed
        kNoFile,     // imported
        kOvertaken,  // its file was edited
    };
    Kind kind_ = Kind::kNothing;
};

}  // namespace corvex
