#pragma once
// The palette the host runs with: the desktop's, or with QUORVEL_PALETTE=dark
// a dark one under the Fusion style, to see (and take pictures of) the
// windows as a user of a dark theme does.

namespace qv {

class HostPalette {
public:
    // Applies the palette QUORVEL_PALETTE asks for; nothing when unset.
    static void applyFromEnvironment();
    // A dark palette as dark themes commonly give it (bright text red).
    static void applyDark();
};

}  // namespace qv
