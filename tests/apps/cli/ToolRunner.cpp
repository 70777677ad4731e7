#include "tests/apps/cli/ToolRunner.h"

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <sstream>

#include "tests/checking/CheckTestHelper.h"

namespace corvex {

namespace {

// Both shells take a text in double quotes as it is, as long as it holds none of the characters that no test uses.
std::string Quoted(const std::string& text) {
    return '"' + text + '"';
}

std::string ReadText(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    std::string text{std::istreambuf_iterator<char>(file), {}};
    std::erase(text, '\r');
    return text;
}

// A POSIX system keeps the exit code in the second byte, Windows has nothing else.
int ExitCodeOf(int status) {
    return status > 0xFF ? status >> 8 : status;
}

}  // namespace

ToolResult RunTool(const Words& args, const std::string& before) {
    const TempFile out("", ".out");
    const TempFile err("", ".err");
    std::string line = before + Quoted(CORVEX_CLI);
    for (const std::string& arg : args)
        line += ' ' + Quoted(arg);
    line += " >" + Quoted(out.Path()) + " 2>" + Quoted(err.Path());
#ifdef CORVEX_SHELL_EATS_QUOTES
    line = Quoted(line);
#endif
    ToolResult result;
    result.code = ExitCodeOf(std::system(line.c_str()));
    result.out = ReadText(out.Path());
    result.err = ReadText(err.Path());
    return result;
}

testing::AssertionResult Has(const std::string& text, const std::string& part) {
    if (text.find(part) != std::string::npos) return testing::AssertionSuccess();
    return testing::AssertionFailure() << "no \"" << part << "\" in:\n" << text;
}

Words LinesOf(const std::string& text) {
    Words lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);)
        lines.push_back(line);
    return lines;
}

std::string Example(const std::string& name) {
    return std::string(CORVEX_SOURCE_DIR) + "/examples/" + name;
}

}  // namespace corvex
