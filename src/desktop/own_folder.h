// A program folder that the user can't write to, as after an installation for all users.
#pragma once

namespace tav {

// To be called before the first window. Does nothing where the program can save beside itself.
// Otherwise the user's own copy of the program is started, brought up to date; if there is none,
// the user is told what can't be saved, and may have one made. True if this program has to end: the
// copy has been started, or the user has left.
bool OfferOwnFolder();

}  // namespace tav
