#include "Nombres.h"

#include "ErreurExecution.h"

#include <QByteArray>

#include <optional>

namespace webimport {

namespace {

constexpr QChar kBlancInsecable = u'\u00A0';
constexpr QChar kBlancInsecableEtroit = u'\u202F';

bool EstBlanc(QChar c) {
    return c == u' ' || c == kBlancInsecable || c == kBlancInsecableEtroit;
}

bool EstChiffre(QChar c) {
    return c >= u'0' && c <= u'9';
}

/// Reads a number from front to back and notes it in the form of the C locale.
class Lecture {
public:
    Lecture(QStringView texte, const QLocale &pays)
        : m_reste(texte), m_decimale(pays.decimalPoint().front()), m_groupe(pays.groupSeparator().front()) {}

    std::optional<double> Nombre() {
        Sauter(EstBlanc);
        Prendre([](QChar c) { return c == u'+' || c == u'-'; });
        if (!Mantisse() || !Exposant()) {
            return std::nullopt;
        }
        Sauter(EstBlanc);
        bool lu = false;
        const double valeur = m_lu.toDouble(&lu);
        return m_reste.isEmpty() && lu ? std::optional(valeur) : std::nullopt;
    }

private:
    template <class Test>
    bool Voit(Test test) const {
        return !m_reste.isEmpty() && test(m_reste.front());
    }

    template <class Test>
    void Sauter(Test test) {
        while (Voit(test)) {
            m_reste = m_reste.sliced(1);
        }
    }

    template <class Test>
    bool Prendre(Test test) {
        if (!Voit(test)) {
            return false;
        }
        m_lu += m_reste.front().toLatin1();
        m_reste = m_reste.sliced(1);
        return true;
    }

    bool Chiffres() {
        bool lus = false;
        while (Prendre(EstChiffre)) {
            lus = true;
        }
        return lus;
    }

    /// Code page 1252 has but one of the no-break blanks by which countries separate groups.
    bool EstGroupe(QChar c) const { return c == m_groupe || (EstBlanc(m_groupe) && c == kBlancInsecable); }

    bool Mantisse() {
        bool lus = Chiffres();
        while (lus && Voit([this](QChar c) { return EstGroupe(c); })) {
            m_reste = m_reste.sliced(1);
            Chiffres();
        }
        if (Voit([this](QChar c) { return c == m_decimale; })) {
            m_reste = m_reste.sliced(1);
            m_lu += '.';
            lus = Chiffres() || lus;
        }
        return lus;
    }

    bool Exposant() {
        if (!Prendre([](QChar c) { return c == u'e' || c == u'E'; })) {
            return true;
        }
        Prendre([](QChar c) { return c == u'+' || c == u'-'; });
        return Chiffres();
    }

    QStringView m_reste;
    QChar m_decimale;
    QChar m_groupe;
    QByteArray m_lu;
};

} // namespace

bool EstNumerique(QStringView texte, const QLocale &pays) {
    return Lecture(texte, pays).Nombre().has_value();
}

double LireNombre(QStringView texte, const QLocale &pays) {
    const auto nombre = Lecture(texte, pays).Nombre();
    if (!nombre) {
        throw IncompatibiliteDeType();
    }
    return *nombre;
}

} // namespace webimport
