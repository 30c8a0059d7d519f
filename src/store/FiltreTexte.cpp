#include "FiltreTexte.h"

#include <array>
#include <cstddef>

namespace store {

namespace {

constexpr std::size_t kLettres = 0x180; // the Latin letters of Western languages

/// The upper case of each of the first characters; 0 for those that become two letters, as ß does.
std::array<char16_t, kLettres> calculerMajuscules() {
    std::array<char16_t, kLettres> majuscules{};
    for (std::size_t lettre = 0; lettre < kLettres; ++lettre) {
        const QString majuscule = QString(QChar(static_cast<char16_t>(lettre))).toUpper();
        majuscules.at(lettre) = majuscule.size() == 1 ? majuscule.front().unicode() : u'\0';
    }
    return majuscules;
}

} // namespace

FiltreTexte::FiltreTexte(bool enTete, const QString &filtre)
    : m_enTete(enTete), m_cherche(filtre.toUpper().toStdU16String()) {}

bool FiltreTexte::Garde(QByteArrayView texte) {
    if (m_cherche.empty()) {
        return m_enTete;
    }
    if (!MettreEnMajuscules(texte)) {
        m_majuscules = QString::fromUtf8(texte).toUpper().toStdU16String();
    }
    return m_enTete ? m_majuscules.starts_with(m_cherche)
                    : m_majuscules.find(m_cherche) != std::u16string::npos;
}

/// Puts the text into m_majuscules, if each of its letters is one of the common ones: these have one byte, or two of
/// which the first begins with the bits 110.
bool FiltreTexte::MettreEnMajuscules(QByteArrayView texte) {
    static const std::array<char16_t, kLettres> majuscules = calculerMajuscules();
    m_majuscules.clear();
    for (auto place = texte.begin(); place != texte.end(); ++place) {
        const auto lettre = static_cast<unsigned char>(*place);
        std::size_t numero = lettre;
        if (lettre >= 0x80) {
            if (lettre >> 5 != 0b110 || ++place == texte.end()) {
                return false;
            }
            numero = std::size_t{lettre & 0x1FU} << 6 | (static_cast<unsigned char>(*place) & 0x3FU);
        }
        const char16_t majuscule = numero < kLettres ? majuscules[numero] : u'\0';
        if (majuscule == u'\0') {
            return false;
        }
        m_majuscules.push_back(majuscule);
    }
    return true;
}

} // namespace store
