// A library that has the editor's name in a test, and not its entry.
extern "C" __declspec(dllexport) int SomethingElse() {
    return 0;
}
