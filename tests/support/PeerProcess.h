// A second process that does a piece of a test's work and can be killed at any moment. For systems that can fork.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <new>
#include <type_traits>

namespace corvex::test {

// A copy of this process, which must have no other thread. What it shares with the test is SharedMemory alone.
class PeerProcess {
public:
    // The copy runs `work` and ends with what that returns, without running any destructor outside it.
    explicit PeerProcess(const std::function<int()>& work);
    // Kills it when it still runs.
    ~PeerProcess();
    PeerProcess(const PeerProcess&) = delete;
    PeerProcess& operator=(const PeerProcess&) = delete;

    // Ends it where it stands; it gets no word to say. Returns when it is gone; false when it had ended before.
    bool Kill();
    // What it ended with, -1 when it was killed.
    int Wait();

private:
    int id_;
};

// Memory that peers made afterwards see too, zeroed. The test dies when there is none.
void* MapShared(std::size_t size);
void UnmapShared(void* memory, std::size_t size);

template <class Words>
class SharedMemory {
    static_assert(std::is_trivially_destructible_v<Words>);

public:
    SharedMemory() : words_(new (MapShared(sizeof(Words))) Words) {}
    ~SharedMemory() { UnmapShared(words_, sizeof(Words)); }
    SharedMemory(const SharedMemory&) = delete;
    SharedMemory& operator=(const SharedMemory&) = delete;
    Words* operator->() const { return words_; }
    Words& operator*() const { return *words_; }

private:
    Words* words_;
};

// Meanwhile no file of this process grows beyond it; a write that would takes what fits and fails, as on a full disk.
class FileSizeLimit {
public:
    explicit FileSizeLimit(std::uint64_t bytes);
    ~FileSizeLimit();
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;
};

}  // namespace corvex::test
