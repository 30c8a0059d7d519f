#pragma once

#include <QFont>

namespace platform::controls {

/// The faces of the interface; where one is not installed, a free face of the same widths stands in for it.
enum class Face { Verdana, SansSerif, Comic };

/// A font of the interface in points (20 twips each), at the scale of the windows.
QFont interfaceFont(Face face, double points, bool bold = false);

/// Lets the free faces stand in for the named ones in rich texts too, which name their fonts themselves. To
/// be called once, with the application made.
void substituteFonts();

} // namespace platform::controls
