// A disk under SQLite that fails on demand, at a write that is told by its number. While one exists, every connection
// that is opened writes through it. It never waits for the real disk, which only a loss of power needs.
#pragma once

#include <sqlite3.h>

namespace orvelle::store {

class FaultyDisk {
public:
    enum class Fault { None, Kill, KillHalfWay, Full };  // Kill: this process, by SIGKILL, before the write

    FaultyDisk();
    FaultyDisk(const FaultyDisk&) = delete;
    FaultyDisk& operator=(const FaultyDisk&) = delete;
    ~FaultyDisk();

    // The write of this number, counted from 1, meets the fault; with Full, every later one does too.
    void FailAt(long write, Fault fault);
    void FailFromNowOn() { FailAt(writes + 1, Fault::Full); }
    void Heal() { FailAt(0, Fault::None); }
    // As on a full disk: the memory that connections share can't be made.
    void FailSharedMemory() { hasSharedMemory = false; }
    long Writes() const { return writes; }

private:
    struct System;
    struct File;
    struct FileCalls;

    // Counts a write, of which `halfWay` does the first half. SQLITE_OK if it may go on.
    template <typename HalfWay>
    int Meet(HalfWay halfWay);

    static int OpenFile(sqlite3_vfs* system, const char* name, sqlite3_file* file, int flags, int* outFlags);
    static int DeleteFile(sqlite3_vfs* system, const char* name, int syncFolder);

    System* system;
    long writes = 0;
    long faultAt = 0;
    Fault fault = Fault::None;
    bool hasSharedMemory = true;
};

}  // namespace orvelle::store
