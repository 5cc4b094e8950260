// `orvelle-sim --check`: what is wrong with directories of voice channels, line by line, for those who write them and
// for their editors and scripts.
#pragma once

#include <string>
#include <vector>

namespace orvelle {

// Of each file ("-" for standard input) its mistakes, its oddities and a line that sums up, on standard output. The
// exit status: 0 where no file has a mistake; a file that can't be read is one, told on standard error.
int CheckDirectories(const std::vector<std::string>& files);

}  // namespace orvelle
