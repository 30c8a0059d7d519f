#include "Nombres.h"

#include "ErreurExecution.h"

#include <QByteArray>

#include <optional>

namespace webimport {

namespace {

constexpr QChar kBlancInsecable = u'\u00A0';
constexpr QChar kBlancInsecableEtroit = u'\u202F';

bool estBlanc(QChar c) {
    return c == u' ' || c == kBlancInsecable || c == kBlancInsecableEtroit;
}

bool estChiffre(QChar c) {
    return c >= u'0' && c <= u'9';
}

/// Reads a number from front to back and notes it in the form of the C locale.
class Lecture {
public:
    Lecture(QStringView texte, const QLocale &pays)
        : m_reste(texte), m_decimale(pays.decimalPoint().front()), m_groupe(pays.groupSeparator().front()) {}

    std::optional<double> nombre() {
        sauter(estBlanc);
        prendre([](QChar c) { return c == u'+' || c == u'-'; });
        if (!mantisse() || !exposant()) {
            return std::nullopt;
        }
        sauter(estBlanc);
        bool lu = false;
        const double valeur = m_lu.toDouble(&lu);
        return m_reste.isEmpty() && lu ? std::optional(valeur) : std::nullopt;
    }

private:
    template <class Test>
    bool voit(Test test) const {
        return !m_reste.isEmpty() && test(m_reste.front());
    }

    template <class Test>
    void sauter(Test test) {
        while (voit(test)) {
            m_reste = m_reste.sliced(1);
        }
    }

    template <class Test>
    bool prendre(Test test) {
        if (!voit(test)) {
            return false;
        }
        m_lu += m_reste.front().toLatin1();
        m_reste = m_reste.sliced(1);
        return true;
    }

    bool chiffres() {
        bool lus = false;
        while (prendre(estChiffre)) {
            lus = true;
        }
        return lus;
    }

    /// Code page 1252 has but one of the no-break blanks by which countries separate groups.
    bool estGroupe(QChar c) const { return c == m_groupe || (estBlanc(m_groupe) && c == kBlancInsecable); }

    bool mantisse() {
        bool lus = chiffres();
        while (lus && voit([this](QChar c) { return estGroupe(c); })) {
            m_reste = m_reste.sliced(1);
            chiffres();
        }
        if (voit([this](QChar c) { return c == m_decimale; })) {
            m_reste = m_reste.sliced(1);
            m_lu += '.';
            lus = chiffres() || lus;
        }
        return lus;
    }

    bool exposant() {
        if (!prendre([](QChar c) { return c == u'e' || c == u'E'; })) {
            return true;
        }
        prendre([](QChar c) { return c == u'+' || c == u'-'; });
        return chiffres();
    }

    QStringView m_reste;
    QChar m_decimale;
    QChar m_groupe;
    QByteArray m_lu;
};

} // namespace

bool EstNumerique(QStringView texte, const QLocale &pays) {
    return Lecture(texte, pays).nombre().has_value();
}

double LireNombre(QStringView texte, const QLocale &pays) {
    const auto nombre = Lecture(texte, pays).nombre();
    if (!nombre) {
        throw IncompatibiliteDeType();
    }
    return *nombre;
}

} // namespace webimport
