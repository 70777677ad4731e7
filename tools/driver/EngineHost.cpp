#include "tools/driver/EngineHost.h"

#include <winsock2.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <filesystem>
#include <stdexcept>

namespace corvex::test {

namespace {

constexpr char kDefinition[] = CORVEX_SOURCE_DIR "/examples/harrier-8192.adx";

SOCKET Connect() {
    const char* port = std::getenv("CORVEX_ENGINES");
    if (port == nullptr) throw std::runtime_error("not started by with-engines.py");
    const SOCKET connection = ::socket(AF_INET, SOCK_STREAM, IPPROTO_TCP);
    sockaddr_in address = {};
    address.sin_family = AF_INET;
    address.sin_port = ::htons(static_cast<u_short>(std::atoi(port)));
    address.sin_addr.s_addr = ::htonl(INADDR_LOOPBACK);
    if (::connect(connection, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0) {
        ::closesocket(connection);
        throw std::runtime_error("the host of the engines does not answer");
    }
    return connection;
}

std::string Exchange(SOCKET connection, const std::string& line) {
    ::send(connection, line.data(), static_cast<int>(line.size()), 0);
    std::string answer;
    std::array<char, 512> part = {};
    for (int count = 1; count > 0 && answer.find('\n') == std::string::npos;) {
        count = ::recv(connection, part.data(), static_cast<int>(part.size()), 0);
        if (count > 0) answer.append(part.data(), static_cast<std::size_t>(count));
    }
    return answer.substr(0, answer.find('\n'));
}

}  // namespace

EngineHost::EngineHost() {
    WSADATA data;
    if (::WSAStartup(MAKEWORD(2, 2), &data) != 0) throw std::runtime_error("no sockets");
}

EngineHost::~EngineHost() {
    ::WSACleanup();
}

void EngineHost::Start(std::vector<std::string> options) {
    const auto isDefinition = [](const std::string& option) { return option.find(".adx") != std::string::npos; };
    if (std::none_of(options.begin(), options.end(), isDefinition)) options.emplace_back(kDefinition);
    std::string line = "start\t" + TestPort();
    for (const std::string& option : options)
        line.append("\t").append(option);
    Request(line);
}

std::string EngineHost::Stop() {
    return Request("stop\t" + TestPort());
}

void EngineHost::Unplug() {
    Request("unplug\t" + TestPort());
}

void EngineHost::TakePicture(const std::string& file, const RECT& place) {
    std::string line = "picture\t" + file;
    for (const LONG number : {place.right - place.left, place.bottom - place.top, place.left, place.top})
        line.append("\t").append(std::to_string(number));
    Request(line);
}

double EngineHost::ProcessorTimeOf(const std::string& text) const {
    return std::atof(Request("processor\t" + text).c_str());
}

std::string EngineHost::Request(const std::string& line) const {
    const SOCKET connection = Connect();
    std::string answer = Exchange(connection, line + "\n");
    ::closesocket(connection);
    if (answer.empty() || answer.rfind("error", 0) == 0) throw std::runtime_error("engine host: " + answer);
    return answer;
}

std::string TestPort() {
    const char* port = std::getenv("CORVEX_TEST_PORT");
    return port == nullptr ? "COM1" : port;
}

std::string HostPath(const std::string& file) {
    using NameOf = char*(CDECL*)(const wchar_t*);
    const auto nameOf = reinterpret_cast<NameOf>(
        reinterpret_cast<void*>(::GetProcAddress(::GetModuleHandleA("kernel32"), "wine_get_unix_file_name")));
    if (nameOf == nullptr) throw std::runtime_error("no host");
    char* const name = nameOf(std::filesystem::path(file).wstring().c_str());
    if (name == nullptr) throw std::runtime_error("the host has no " + file);
    std::string path = name;
    ::HeapFree(::GetProcessHeap(), 0, name);
    return path;
}

std::uint64_t CountIn(const std::string& json, const std::string& name) {
    const std::size_t place = json.find("\"" + name + "\":");
    if (place == std::string::npos) throw std::runtime_error("no " + name + " in " + json);
    return std::strtoull(json.c_str() + place + name.size() + 3, nullptr, 10);
}

}  // namespace corvex::test
