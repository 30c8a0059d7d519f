#include "French.h"

#include <QCoreApplication>
#include <QTranslator>

#include <array>
#include <memory>
#include <utility>

namespace platform::dialogs {

namespace {

/// The toolkit's own translations, and what they leave in English.
class FrenchTexts : public QTranslator {
public:
    using QTranslator::QTranslator;

    QString translate(const char *context, const char *source, const char *disambiguation,
                      int n) const override {
        constexpr std::array kLeftovers{
            std::pair("Printer Properties", "Propriétés de l'imprimante"),
            std::pair("Advanced", "Options avancées"),
        };
        const bool printing = qstrncmp(context, "QPrint", qstrlen("QPrint")) == 0;
        for (const auto &[english, french] : kLeftovers) {
            if (printing && qstrcmp(source, english) == 0) {
                return QString::fromUtf8(french);
            }
        }
        return QTranslator::translate(context, source, disambiguation, n);
    }
};

} // namespace

void SpeakFrench(const QString &translationsFolder) {
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    auto translator = std::make_unique<FrenchTexts>(QCoreApplication::instance());
    if (translator->load(QStringLiteral("qtbase_fr"), translationsFolder)) {
        QCoreApplication::installTranslator(translator.release());
    }
}

} // namespace platform::dialogs
