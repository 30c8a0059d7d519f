#pragma once

#include <QColor>

class QTextDocument;

namespace webimport {

/// Colours of an imported text.
struct CouleursTexte {
    QRgb ordinaire;
    QRgb accent; ///< of what stood between "<B>" and "</B>"
};

inline constexpr CouleursTexte kCouleursMethode{qRgb(0, 255, 255), qRgb(255, 0, 0)};
inline constexpr CouleursTexte kCouleursComplements{qRgb(255, 255, 255), qRgb(0, 0, 255)};

/// Colours the whole document, makes the texts between "<B>" and "</B>" bold in the colour of emphasis, but
/// for their last characters, and takes the tags out. Ends at a tag that is not closed, which is taken out
/// like the others. Does nothing but colour where there is no "<B>".
void MarquerTexte(QTextDocument &document, const CouleursTexte &couleurs);

} // namespace webimport
