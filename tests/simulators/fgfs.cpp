// fgfs PORT MEGAHERTZ: a FlightGear that is played, for tests: its file has the name, and it sends the line of its
// radios to that port of loopback 20 times a second. A line of its input is what COM1 is tuned to from then on; it ends
// with it.
#include <netinet/in.h>
#include <poll.h>
#include <unistd.h>

#include <cstdlib>
#include <iostream>
#include <string>

#include "simulators/UdpSocket.h"

int main(int count, char** words) {
    if (count != 3) return EXIT_FAILURE;
    using namespace orvelle::simulators;
    const orvelle::FileDescriptor radio = OpenUdp();
    const UdpPlace listener{INADDR_LOOPBACK, static_cast<std::uint16_t>(std::atoi(words[1]))};
    std::string tuned = words[2];
    for (;;) {
        const std::string line = "COM1=" + tuned +
                                 ",COM2=121.500,OP1=1,OP2=1,VOL1=0.700,VOL2=0.700,TX=1,PTT=0,ONLINE=1,PAUSED=0,"
                                 "LAT=63.98500,LON=-22.60560,ALT=171.0,AIRCRAFT=c172p,CS=D-EABC\n";
        SendUdp(radio, line, listener);
        pollfd input{STDIN_FILENO, POLLIN, 0};
        constexpr int Period = 50;  // milliseconds
        if (poll(&input, 1, Period) == 1 && !std::getline(std::cin, tuned)) return EXIT_SUCCESS;
    }
}
