// How repeats of a held key reach this program. The program calls it once, as soon as its application is there.
#pragma once

namespace orvelle {

// Asks an X server to tell a repeat as one more press, without the release before it: the toolkit takes such a release
// for the user's own whenever it is read before the press that follows. Holds for the whole program; does nothing on
// other screens.
void TellRepeatsAsPresses();

}  // namespace orvelle
