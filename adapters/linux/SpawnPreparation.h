// How a program of ours is started, for posix_spawn: with nothing on its three standard streams. What else it needs is
// added to the two members before the start.
#pragma once

#include <fcntl.h>
#include <spawn.h>

namespace orvelle::linux {

class SpawnPreparation {
public:
    SpawnPreparation() {
        posix_spawn_file_actions_init(&Files);
        for (int standard = 0; standard < 3; ++standard)
            posix_spawn_file_actions_addopen(&Files, standard, "/dev/null", O_RDWR, 0);
        posix_spawnattr_init(&Attributes);
    }
    SpawnPreparation(const SpawnPreparation&) = delete;
    SpawnPreparation& operator=(const SpawnPreparation&) = delete;
    ~SpawnPreparation() {
        posix_spawnattr_destroy(&Attributes);
        posix_spawn_file_actions_destroy(&Files);
    }

    posix_spawn_file_actions_t Files;
    posix_spawnattr_t Attributes;
};

}  // namespace orvelle::linux
