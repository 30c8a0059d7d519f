#pragma once

#include <QByteArrayView>
#include <QString>

#include <string>

namespace store {

/// Tells which texts begin with a filter, or hold it. Both sides are compared in upper case.
class FiltreTexte {
public:
    /// @param enTete keep the texts that begin with the filter, an empty one every text; if false, those that hold it,
    ///               an empty one none
    FiltreTexte(bool enTete, const QString &filtre);

    /// @param texte in UTF-8
    bool Garde(QByteArrayView texte);

private:
    bool m_enTete;
    std::string m_cherche; // in UTF-8, as all texts here
    std::string
        m_majuscules; // of the text looked at; kept, so that thousands of texts need no memory of their own
};

} // namespace store
