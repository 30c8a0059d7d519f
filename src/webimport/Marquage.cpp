#include "Marquage.h"

#include "Positions.h"

#include <QTextCursor>
#include <QTextDocument>

namespace webimport {

namespace {

constexpr QStringView kDebutGras = u"<B>";
constexpr QStringView kFinGras = u"</B>";

QTextCursor Selection(QTextDocument &document, qsizetype debut, qsizetype longueur) {
    QTextCursor curseur(&document);
    curseur.setPosition(int(debut));
    curseur.setPosition(int(debut + longueur), QTextCursor::KeepAnchor);
    return curseur;
}

void Colorer(QTextCursor curseur, QRgb couleur, bool gras) {
    QTextCharFormat format;
    format.setForeground(QColor(couleur));
    if (gras) {
        format.setFontWeight(QFont::Bold);
    }
    curseur.mergeCharFormat(format);
}

void Accentuer(QTextDocument &document, QStringView texte, QRgb couleur) {
    Occurrences debuts(texte, kDebutGras);
    Occurrences fins(texte, kFinGras);
    for (qsizetype p = debuts.Depuis(1); p > 0;) {
        const qsizetype q = fins.Depuis(p + 1);
        if (q == 0) {
            return;
        }
        // From the opening tag on; the last character before the closing tag stays out.
        Colorer(Selection(document, p - 1, q - p - 1), couleur, true);
        p = debuts.Depuis(q + 1);
    }
}

/// Whether all characters of a stretch look the same; else the stretch is no text of its own in rich text
/// form.
bool EstUniforme(QTextDocument &document, qsizetype debut, qsizetype longueur) {
    QTextCursor curseur(&document);
    curseur.setPosition(int(debut + 1));
    const QTextCharFormat format = curseur.charFormat();
    for (qsizetype i = 2; i <= longueur; ++i) {
        curseur.setPosition(int(debut + i));
        if (curseur.charFormat() != format) {
            return false;
        }
    }
    return true;
}

void Retirer(QTextDocument &document, QStringView balise) {
    const QString texte = document.toPlainText();
    // From the last on, so that the positions before stay right.
    for (qsizetype i = texte.lastIndexOf(balise); i >= 0;) {
        if (EstUniforme(document, i, balise.size())) {
            Selection(document, i, balise.size()).removeSelectedText();
        }
        i = i > 0 ? texte.lastIndexOf(balise, i - 1) : -1;
    }
}

} // namespace

void MarquerTexte(QTextDocument &document, const CouleursTexte &couleurs) {
    const QString texte = document.toPlainText();
    QTextCursor ensemble(&document);
    ensemble.beginEditBlock();
    Colorer(Selection(document, 0, texte.size()), couleurs.ordinaire, false);
    if (texte.contains(kDebutGras)) {
        Accentuer(document, texte, couleurs.accent);
        Retirer(document, kDebutGras);
        Retirer(document, kFinGras);
    }
    ensemble.endEditBlock();
}

} // namespace webimport
