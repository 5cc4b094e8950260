#include "replay/World.h"

namespace orvelle::replay {

World::World(std::ostream& output) : Output(output) {}

World::~World() = default;

}  // namespace orvelle::replay
