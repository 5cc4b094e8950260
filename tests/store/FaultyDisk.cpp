#include "tests/store/FaultyDisk.h"

#include <csignal>
#include <new>

namespace orvelle::store {

struct FaultyDisk::System : sqlite3_vfs {
    FaultyDisk* Disk;
    sqlite3_vfs* Real;
};

// SQLite gives the room for it, and for the real file behind it.
struct FaultyDisk::File : sqlite3_file {
    FaultyDisk* Disk;
    sqlite3_file* Real() { return reinterpret_cast<sqlite3_file*>(this + 1); }
};

struct FaultyDisk::FileCalls {
    static sqlite3_file* Real(sqlite3_file* file) { return static_cast<File*>(file)->Real(); }
    static const sqlite3_io_methods& On(sqlite3_file* file) { return *Real(file)->pMethods; }

    static int Close(sqlite3_file* file) { return On(file).xClose(Real(file)); }
    static int Read(sqlite3_file* file, void* to, int size, sqlite3_int64 offset) {
        return On(file).xRead(Real(file), to, size, offset);
    }
    static int Write(sqlite3_file* file, const void* from, int size, sqlite3_int64 offset) {
        const int code =
            static_cast<File*>(file)->Disk->Meet([&] { On(file).xWrite(Real(file), from, size / 2, offset); });
        return code != SQLITE_OK ? code : On(file).xWrite(Real(file), from, size, offset);
    }
    static int Truncate(sqlite3_file* file, sqlite3_int64 size) {
        const int code = static_cast<File*>(file)->Disk->Meet([] {});
        return code != SQLITE_OK ? code : On(file).xTruncate(Real(file), size);
    }
    static int Sync(sqlite3_file*, int) { return SQLITE_OK; }
    static int Size(sqlite3_file* file, sqlite3_int64* size) { return On(file).xFileSize(Real(file), size); }
    static int Lock(sqlite3_file* file, int lock) { return On(file).xLock(Real(file), lock); }
    static int Unlock(sqlite3_file* file, int lock) { return On(file).xUnlock(Real(file), lock); }
    static int IsReserved(sqlite3_file* file, int* out) { return On(file).xCheckReservedLock(Real(file), out); }
    static int Control(sqlite3_file* file, int what, void* argument) {
        return On(file).xFileControl(Real(file), what, argument);
    }
    static int SectorSize(sqlite3_file* file) { return On(file).xSectorSize(Real(file)); }
    static int Traits(sqlite3_file* file) { return On(file).xDeviceCharacteristics(Real(file)); }
    static int ShareMap(sqlite3_file* file, int page, int size, int extend, void volatile** map) {
        if (!static_cast<File*>(file)->Disk->hasSharedMemory) return SQLITE_IOERR_SHMSIZE;
        return On(file).xShmMap(Real(file), page, size, extend, map);
    }
    static int ShareLock(sqlite3_file* file, int offset, int count, int flags) {
        return On(file).xShmLock(Real(file), offset, count, flags);
    }
    static void ShareBarrier(sqlite3_file* file) { On(file).xShmBarrier(Real(file)); }
    static int ShareUnmap(sqlite3_file* file, int remove) { return On(file).xShmUnmap(Real(file), remove); }

    static constexpr sqlite3_io_methods All{2,         Close,        Read,       Write,   Truncate,   Sync,   Size,
                                            Lock,      Unlock,       IsReserved, Control, SectorSize, Traits, ShareMap,
                                            ShareLock, ShareBarrier, ShareUnmap, nullptr, nullptr};
};

FaultyDisk::FaultyDisk() {
    sqlite3_initialize();
    sqlite3_vfs* real = sqlite3_vfs_find(nullptr);
    system = new System{*real, this, real};
    system->zName = "faulty-disk";
    system->szOsFile = static_cast<int>(sizeof(File)) + real->szOsFile;
    system->xOpen = OpenFile;
    system->xDelete = DeleteFile;
    sqlite3_vfs_register(system, 1);
}

FaultyDisk::~FaultyDisk() {
    sqlite3_vfs_unregister(system);
    sqlite3_vfs_register(system->Real, 1);
    delete system;
}

void FaultyDisk::FailAt(long write, Fault newFault) {
    faultAt = write;
    fault = newFault;
}

template <typename HalfWay>
int FaultyDisk::Meet(HalfWay halfWay) {
    ++writes;
    switch (fault) {
        case Fault::None:
            return SQLITE_OK;
        case Fault::Full:
            return writes >= faultAt ? SQLITE_FULL : SQLITE_OK;
        case Fault::KillHalfWay:
            if (writes == faultAt) halfWay();
            [[fallthrough]];
        case Fault::Kill:
            if (writes == faultAt) raise(SIGKILL);
            return SQLITE_OK;
    }
    return SQLITE_OK;
}

int FaultyDisk::OpenFile(sqlite3_vfs* system, const char* name, sqlite3_file* room, int flags, int* outFlags) {
    const auto& disk = *static_cast<System*>(system);
    File* file = new (room) File{{nullptr}, disk.Disk};
    const int code = disk.Real->xOpen(disk.Real, name, file->Real(), flags, outFlags);
    if (file->Real()->pMethods) file->pMethods = &FileCalls::All;
    return code;
}

int FaultyDisk::DeleteFile(sqlite3_vfs* system, const char* name, int) {
    const auto& disk = *static_cast<System*>(system);
    const int code = disk.Disk->Meet([] {});
    return code != SQLITE_OK ? code : disk.Real->xDelete(disk.Real, name, 0);
}

}  // namespace orvelle::store
