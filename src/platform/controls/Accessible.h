#pragma once

namespace platform::controls {

/// Makes the skinned controls known to screen readers as what they are: a ribbon button is a button although it is a
/// toggle, a sort button one of several of which the current one is chosen, a panel that can be reached a button. May
/// be called any number of times.
void announceControls();

} // namespace platform::controls
