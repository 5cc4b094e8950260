// A TeamSpeak library of which one function is there.
extern "C" __attribute__((visibility("default"))) int tsrDisconnect() { return 0; }
