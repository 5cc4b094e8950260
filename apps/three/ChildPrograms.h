// How the story starts programs: in a group of processes, by which all of a computer's can be stopped in one instant,
// and ended with this process however that ends. What they say of errors is shown in the terminal, unless the process
// was set to merge it with what is read from it.
#pragma once

#include <sys/types.h>

#include <QProcess>
#include <QStringList>

namespace orvelle {

// `group` is the process id of the group's first program; 0 for that one.
void StartChild(QProcess& process, const QString& file, const QStringList& words, pid_t group = 0);
// Asks it to end and waits for that; one that does not listen is killed.
void EndChild(QProcess& process);

}  // namespace orvelle
