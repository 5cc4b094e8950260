// What became of the blocks of a voice on its way to the ear, all together since it was first heard. Kept for each
// speaker, and added up for an output.
#pragma once

namespace orvelle::speech {

struct BlockCounts {
    unsigned long Played = 0;     // from their own packets
    unsigned long Restored = 0;   // from the packet that followed them
    unsigned long Concealed = 0;  // made up
    unsigned long Late = 0;       // packets that came after their moment, or twice
    unsigned long LeftOut = 0;    // so that the delay shrinks

    BlockCounts& operator+=(const BlockCounts& other) {
        Played += other.Played;
        Restored += other.Restored;
        Concealed += other.Concealed;
        Late += other.Late;
        LeftOut += other.LeftOut;
        return *this;
    }
};

}  // namespace orvelle::speech
