#pragma once

#include <QString>
#include <QStringView>

#include <span>
#include <vector>

namespace webimport {

/// A stretch of a page, as it stands and in upper case; both have the same length.
struct LigneLue {
    QStringView texte;
    QStringView majuscules;
};

/// A page cut into lines. A line ends at a carriage return, alone or with a line feed behind it; a line feed
/// of its own belongs to the line. A page that ends with a line end has no empty line after it.
class LignesDePage {
public:
    explicit LignesDePage(const QString &page);

    /// Takes the next line; false at the end of the page.
    bool Lire(LigneLue &ligne);

private:
    QString m_texte;
    QString m_majuscules;
    qsizetype m_suite = 0;
};

/// The markers of a section, letter for letter as the pages have them.
struct Marqueurs {
    QStringView debut;
    QStringView fin;
};

/// The markers made ready for searches without regard to case. They must outlive the object.
class Section {
public:
    Section(QStringView debut, QStringView fin);

    QStringView Debut() const { return m_debut; }

    QStringView Fin() const { return m_fin; }

    const QString &DebutEnMajuscules() const { return m_debutEnMajuscules; }

    const QString &FinEnMajuscules() const { return m_finEnMajuscules; }

    /// What stands between the markers in a line, without the blanks around it; no text (null in both views)
    /// where the line lacks the opening marker. Without the closing marker it ends at the table cell or with
    /// the line; for ".jpg" at ".gif" or with the line.
    LigneLue Dans(const LigneLue &ligne) const;

private:
    QStringView m_debut;
    QStringView m_fin;
    QString m_debutEnMajuscules;
    QString m_finEnMajuscules;
};

std::vector<Section> SectionsDe(std::span<const Marqueurs> marqueurs);

/// Fills a field from a line, unless it holds a text already: the first line that gives one wins. True
/// if the field holds a new text.
bool LireSection(const LigneLue &ligne, const Section &section, QString &champ);

/// The same on a line that was not read from a page.
bool LireSection(QStringView ligne, QStringView debut, QStringView fin, QString &champ);

} // namespace webimport
