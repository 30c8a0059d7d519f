#include "FiltreTexte.h"

#include <array>
#include <cstddef>

namespace store {

namespace {

constexpr std::size_t kLettres = 0x180; // the Latin letters of Western languages

/// A character of two bytes in UTF-8.
using Paire = std::array<char, 2>;

/// The upper case of each of the first characters beyond ASCII; zeros for those whose upper case is not two bytes long, as
/// that of ı.
std::array<Paire, kLettres> CalculerMajuscules() {
    std::array<Paire, kLettres> majuscules{};
    for (std::size_t lettre = 0x80; lettre < kLettres; ++lettre) {
        const QByteArray majuscule = QString(QChar(static_cast<char16_t>(lettre))).toUpper().toUtf8();
        if (majuscule.size() == 2) {
            majuscules.at(lettre) = {majuscule[0], majuscule[1]};
        }
    }
    return majuscules;
}

constexpr bool HorsAscii(char octet) {
    return (static_cast<unsigned char>(octet) & 0x80U) != 0;
}

/// Copies a text with the letters of ASCII in upper case; true if it has others besides. Without a branch, so that the
/// compiler can take many letters at a time.
bool MettreAsciiEnMajuscules(QByteArrayView texte, std::string &majuscules) {
    const auto taille = static_cast<std::size_t>(texte.size());
    majuscules.resize(taille);
    const char *source = texte.data();
    char *cible = majuscules.data();
    unsigned char tous = 0;
    for (std::size_t i = 0; i < taille; ++i) {
        const auto octet = static_cast<unsigned char>(source[i]);
        const bool minuscule = octet >= 'a' && octet <= 'z';
        cible[i] = static_cast<char>(octet - (minuscule ? 'a' - 'A' : 0));
        tous |= octet;
    }
    return HorsAscii(static_cast<char>(tous));
}

/// Puts the letters of two bytes into upper case; false if there is one that is not in the table.
bool MettreAccentsEnMajuscules(std::string &texte) {
    static const std::array<Paire, kLettres> majuscules = CalculerMajuscules();
    for (std::size_t i = 0; i < texte.size(); ++i) {
        if (!HorsAscii(texte[i])) {
            continue;
        }
        // At the end of the text this reads the zero behind it, which continues nothing.
        const auto premier = static_cast<unsigned char>(texte[i]);
        const auto second = static_cast<unsigned char>(texte[i + 1]);
        if (premier >> 5 != 0b110 || second >> 6 != 0b10) {
            return false;
        }
        const std::size_t numero = std::size_t{premier & 0x1FU} << 6 | (second & 0x3FU);
        const Paire majuscule = numero < kLettres ? majuscules[numero] : Paire{};
        if (majuscule == Paire{}) {
            return false;
        }
        texte[i] = majuscule[0];
        texte[++i] = majuscule[1];
    }
    return true;
}

} // namespace

FiltreTexte::FiltreTexte(bool enTete, const QString &filtre)
    : m_enTete(enTete), m_cherche(filtre.toUpper().toStdString()) {}

bool FiltreTexte::Garde(QByteArrayView texte) {
    if (m_cherche.empty()) {
        return m_enTete;
    }
    if (MettreAsciiEnMajuscules(texte, m_majuscules) && !MettreAccentsEnMajuscules(m_majuscules)) {
        m_majuscules = QString::fromUtf8(texte).toUpper().toStdString();
    }
    return m_enTete ? m_majuscules.starts_with(m_cherche) : m_majuscules.find(m_cherche) != std::string::npos;
}

} // namespace store
