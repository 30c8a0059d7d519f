#include "CollationFrancaise.h"

#include <algorithm>
#include <array>
#include <utility>

namespace store {

namespace {

constexpr char32_t kPremierAccent = 0xC0;
constexpr char32_t kDernierAccent = 0x17F; // beyond it, letters count as they are

/// The base letters of U+00C0 to U+017F, capitals and small letters alike. Letters that stand for two, and
/// signs, are blanks here.
constexpr std::string_view kBases = "aaaaaa ceeeeiiii"
                                    "dnooooo ouuuuy  "
                                    "aaaaaa ceeeeiiii"
                                    "dnooooo ouuuuy y"
                                    "aaaaaaccccccccdd"
                                    "ddeeeeeeeeeegggg"
                                    "gggghhhhiiiiiiii"
                                    "ii  jjkkkllllllll"
                                    "llnnnnnnnnnooooo"
                                    "o  rrrrrrssssssss"
                                    "ttttttuuuuuuuuuuuu"
                                    "wwyyyzzzzzzs";
static_assert(kBases.size() == kDernierAccent - kPremierAccent + 1);

/// A byte that is no UTF-8 counts as a character of its own above all others, so that any text has its place.
constexpr char32_t kOctetInvalide = 0x110000;

/// Takes what follows the first byte of a character beyond ASCII off a text.
char32_t PrendreSuite(unsigned char premier, std::string_view &texte) {
    const size_t suite = premier >= 0xF0 ? 3 : premier >= 0xE0 ? 2 : 1;
    if (premier < 0xC2 || premier > 0xF4 || texte.size() < suite) {
        return kOctetInvalide + premier;
    }
    char32_t caractere = premier & (0x3Fu >> suite);
    for (size_t i = 0; i < suite; ++i) {
        const auto octet = static_cast<unsigned char>(texte[i]);
        if ((octet & 0xC0) != 0x80) {
            return kOctetInvalide + premier;
        }
        caractere = caractere << 6 | (octet & 0x3Fu);
    }
    texte.remove_prefix(suite);
    return caractere;
}

/// Takes the next character off a text that is not empty.
inline char32_t Prendre(std::string_view &texte) {
    const auto premier = static_cast<unsigned char>(texte.front());
    texte.remove_prefix(1);
    return premier < 0x80 ? premier : PrendreSuite(premier, texte);
}

/// The small letter of a capital of Latin-1 or Latin Extended-A.
constexpr char32_t MinusculeAccentuee(char32_t c) {
    if (c >= 0xC0 && c <= 0xDE) {
        return c == 0xD7 ? c : c + 0x20;
    }
    if (c == 0x178) {
        return 0xFF;
    }
    const bool capitalePaire = (c >= 0x100 && c <= 0x137 && c != 0x130) || (c >= 0x14A && c <= 0x177);
    const bool capitaleImpaire = (c >= 0x139 && c <= 0x148) || (c >= 0x179 && c <= 0x17E);
    const bool capitale = c % 2 == 0 ? capitalePaire : capitaleImpaire;
    return capitale ? c + 1 : c;
}

constexpr char32_t MinusculeDe(char32_t c) {
    if (c < 0x80) {
        return c >= U'A' && c <= U'Z' ? c + 0x20 : c;
    }
    return MinusculeAccentuee(c);
}

/// What a small letter counts as among the base letters: one, or two.
struct Base {
    char32_t premiere = 0;
    char32_t seconde = 0;
};

constexpr Base BaseAccentuee(char32_t c) {
    switch (c) {
    case U'æ':
        return {U'a', U'e'};
    case U'œ':
        return {U'o', U'e'};
    case U'ß':
        return {U's', U's'};
    case U'þ':
        return {U't', U'h'};
    case U'ĳ':
        return {U'i', U'j'};
    default:
        const char lettre = kBases[c - kPremierAccent];
        return {lettre == ' ' ? c : static_cast<char32_t>(lettre)};
    }
}

/// What a character counts as.
struct Lettre {
    char32_t minuscule = 0;
    Base base;
};

constexpr auto kLettres = [] {
    std::array<Lettre, kDernierAccent + 1> lettres{};
    for (char32_t c = 0; c < lettres.size(); ++c) {
        const char32_t petite = MinusculeDe(c);
        lettres[c] = {petite, petite < kPremierAccent ? Base{petite} : BaseAccentuee(petite)};
    }
    return lettres;
}();

inline Lettre LettreDe(char32_t c) {
    return c < kLettres.size() ? kLettres[c] : Lettre{c, {c}};
}

inline char32_t Minuscule(char32_t c) {
    return LettreDe(c).minuscule;
}

/// The base letters of a text, one after the other.
class Bases {
public:
    explicit Bases(std::string_view texte) : m_texte(texte) {}

    /// The next letter plus 1; 0 at the end.
    char32_t Suivante() {
        if (m_seconde != 0) {
            return std::exchange(m_seconde, 0) + 1;
        }
        if (m_texte.empty()) {
            return 0;
        }
        const Base b = LettreDe(Prendre(m_texte)).base;
        m_seconde = b.seconde;
        return b.premiere + 1;
    }

private:
    std::string_view m_texte;
    char32_t m_seconde = 0;
};

/// Writes a number below 0x200000 in the form of UTF-8: the bytes are in the order of the numbers, and 0
/// alone gives a byte 0. Returns the place after it.
inline char *Ecrire(char *cle, char32_t c) {
    if (c < 0x80) {
        *cle++ = static_cast<char>(c);
        return cle;
    }
    if (c >= 0x10000) {
        *cle++ = static_cast<char>(0xF0 | c >> 18);
        *cle++ = static_cast<char>(0x80 | (c >> 12 & 0x3F));
    } else if (c >= 0x800) {
        *cle++ = static_cast<char>(0xE0 | c >> 12);
    } else {
        *cle++ = static_cast<char>(0xC0 | c >> 6);
    }
    if (c >= 0x800) {
        *cle++ = static_cast<char>(0x80 | (c >> 6 & 0x3F));
    }
    *cle++ = static_cast<char>(0x80 | (c & 0x3F));
    return cle;
}

/// What Ecrire() makes of the small letters of ASCII plus 1, as far as that is a single byte.
constexpr auto kClesAscii = [] {
    std::array<char, 0x7F> cles{};
    for (char32_t c = 0; c < cles.size(); ++c) {
        cles[c] = static_cast<char>(kLettres[c].minuscule + 1);
    }
    return cles;
}();

int Signe(char32_t gauche, char32_t droite) {
    return gauche < droite ? -1 : int(gauche > droite);
}

} // namespace

int ComparerFrancais(std::string_view gauche, std::string_view droite) {
    Bases basesGauche(gauche);
    Bases basesDroite(droite);
    while (true) {
        const char32_t g = basesGauche.Suivante();
        const char32_t d = basesDroite.Suivante();
        if (g != d) {
            return Signe(g, d);
        }
        if (g == 0) {
            break;
        }
    }
    while (!gauche.empty() && !droite.empty()) {
        const char32_t g = Minuscule(Prendre(gauche));
        const char32_t d = Minuscule(Prendre(droite));
        if (g != d) {
            return Signe(g, d);
        }
    }
    return int(droite.empty()) - int(gauche.empty());
}

void AjouterCleDeTri(std::string_view texte, QByteArray &cles) {
    // Each number is a character plus 1, which keeps 0 for the end of the base letters. A byte becomes 4
    // bytes at most in each half: one that is no UTF-8 does.
    const auto place = 4 * static_cast<qsizetype>(texte.size());
    const qsizetype debut = cles.size();
    cles.resize(debut + 2 * place + 1);
    char *bases = cles.data() + debut;
    char *const debutLettres = bases + place + 1;
    char *lettres = debutLettres;
    bool accents = false;
    while (!texte.empty()) {
        if (const auto octet = static_cast<unsigned char>(texte.front()); octet < kClesAscii.size()) {
            *bases++ = *lettres++ = kClesAscii[octet];
            texte.remove_prefix(1);
            continue;
        }
        const Lettre l = LettreDe(Prendre(texte));
        bases = Ecrire(bases, l.base.premiere + 1);
        if (l.base.seconde != 0) {
            bases = Ecrire(bases, l.base.seconde + 1);
        }
        lettres = Ecrire(lettres, l.minuscule + 1);
        accents = accents || l.base.premiere != l.minuscule;
    }
    *bases++ = '\0';
    // A text without accents comes before all others of the same base letters, so it needs nothing more.
    if (accents) {
        bases = std::copy(debutLettres, lettres, bases);
    }
    cles.truncate(bases - cles.constData());
}

} // namespace store
