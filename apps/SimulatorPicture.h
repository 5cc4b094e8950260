// Takes the picture of the simulator's program that README.md shows: a played FlightGear flies near a station of a
// directory. With the program's own broker, in a folder that goes afterwards.
#pragma once

#include <QDir>
#include <QString>

namespace orvelle {

// "simulator", then `ending`, is the picture's name. False, with a line on standard error, if the program didn't come
// to what is to be seen.
bool TakeSimulatorPicture(const QDir& folder, const QString& ending);

}  // namespace orvelle
