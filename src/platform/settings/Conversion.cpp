#include "Conversion.h"

#include <QLocale>
#include <cmath>
#include <limits>

namespace platform::settings {

namespace {

constexpr auto kOverflow = "Dépassement de capacité";

double toDouble(const QString &text) {
    QString plain = text.trimmed();
    plain.replace(QLatin1Char(','), QLatin1Char('.'));
    bool isNumber = false;
    const double number = QLocale::c().toDouble(plain, &isNumber);
    if (!isNumber || !std::isfinite(number)) {
        throw ConversionError("Incompatibilité de type : « " + text.toStdString() +
                              " » n'est pas un nombre.");
    }
    return number;
}

} // namespace

qint16 ToInteger(const QString &text) {
    const double number = std::nearbyint(toDouble(text));
    if (number < std::numeric_limits<qint16>::lowest() || number > std::numeric_limits<qint16>::max()) {
        throw ConversionError(kOverflow);
    }
    return static_cast<qint16>(number);
}

float ToSingle(const QString &text) {
    const auto number = static_cast<float>(toDouble(text));
    if (!std::isfinite(number)) {
        throw ConversionError(kOverflow);
    }
    return number;
}

bool ToBoolean(const QString &text) {
    const QString word = text.trimmed().toLower();
    if (word == u"vrai" || word == u"true") {
        return true;
    }
    if (word == u"faux" || word == u"false") {
        return false;
    }
    return toDouble(text) != 0;
}

QString ToText(bool truth) {
    // The language of the words, which may be another than that of the numbers.
    if (QLocale(QLocale::system().uiLanguages().value(0)).language() == QLocale::French) {
        return truth ? QStringLiteral("Vrai") : QStringLiteral("Faux");
    }
    return truth ? QStringLiteral("True") : QStringLiteral("False");
}

QString ToText(float number) {
    return QString::number(number, 'g', std::numeric_limits<float>::max_digits10);
}

} // namespace platform::settings
