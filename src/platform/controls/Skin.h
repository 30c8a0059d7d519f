#pragma once

#include <QColor>

class QAbstractScrollArea;
class QPainter;
class QPalette;
class QRectF;
class QWidget;

namespace platform::controls {

/// The colours of one display mode.
struct Skin {
    QColor bandTop, bandBottom;     ///< title band
    QColor groundTop, groundBottom; ///< body of the window
    QColor edge;                    ///< outline of the window and of its panels
    QColor strip;                   ///< light strip that carries the toolbar
    QColor button, buttonHover;     ///< sort buttons at rest and under the pointer
    QColor buttonCurrent;           ///< the sort button of the current view
    QColor accent;                  ///< ornaments, focus ring, progress
    QColor title;                   ///< writing on the title band
};

/// The skin of display mode 0, 1 or 2; any other mode gives the first.
const Skin &skinOf(int mode);

/// Colours that do not change with the display mode: ink on paper, and grounds like paper, the palest first.
inline constexpr QColor kInk(22, 33, 58);
inline constexpr QColor kPaper(240, 245, 252);       ///< what is typed on
inline constexpr QColor kPaleGround(214, 225, 242);  ///< lines of text that can be pressed, a title
inline constexpr QColor kLightGround(190, 206, 232); ///< frames of photos, bands
inline constexpr QColor kListGround(148, 173, 214);  ///< lists, the page of a recipe

/// The colours of all that the toolkit paints, dialogs too. They are light and depend on no desktop: every colour that a
/// window sets for itself is chosen to stand beside them.
QPalette programPalette();

/// Fills a rounded rectangle with a vertical gradient and outlines it; no outline with an invalid edge
/// colour.
void paintBlock(QPainter &painter, const QRectF &block, double radius, const QColor &top,
                const QColor &bottom, const QColor &edge);

/// A ring inside a control, if that has the focus, in the colours of its window.
void paintFocusRing(QPainter &painter, const QWidget &control);

/// A frame of two pixels around an area, in the colour of its ground; while the area has the focus, in the accent of
/// its window's skin.
void paintFocusFrame(QAbstractScrollArea &area, bool focused);

/// Gives the scroll bar of an area the colours of its ground.
void colourScrollBar(QAbstractScrollArea &area, const QColor &ground);

} // namespace platform::controls
