#pragma once

#include "LireSection.h"

#include <QString>

namespace webimport {

/// The steps of a method as they are collected: behind each picture one paragraph, with a hyphen before it
/// and a blank line between two.
class EtapesMethode {
public:
    struct Regle {
        QStringView cherche; ///< a step is there where this occurs
        QStringView coupe;   ///< the end of it, behind which the step begins
        /// An empty step adds no paragraph, and the line ends behind the first bold text of a step.
        bool soignee = false;
    };

    /// Adds the steps of a stretch of the page. Gives the position behind the first character of the last
    /// cutting text found, 1 if there is none.
    qsizetype Collecter(const LigneLue &explication, const Regle &regle);

    void Vider() { m_texte.clear(); }

    /// The paragraphs without their "<BR>".
    const QString &Texte() const { return m_texte; }

private:
    void Ajouter(QString etape);

    QString m_texte;
    qsizetype m_reste = kLongueurAuPlus;

    /// Characters that the steps of one page may have together. Where "<IMG" or "<BR>" is missing, each step
    /// takes in all that follow it, and the whole would grow with the square of the page. Each character
    /// taken once, the longest page stays below it.
    static constexpr qsizetype kLongueurAuPlus = qsizetype(16) * 1024 * 1024;
};

} // namespace webimport
