#include "French.h"

#include <QCoreApplication>
#include <QTranslator>
#include <array>
#include <memory>
#include <utility>

namespace platform::dialogs {

namespace {

/// Translates what the toolkit's own file leaves in English.
class Leftovers : public QTranslator {
public:
    using QTranslator::QTranslator;

    bool isEmpty() const override { return false; }

    QString translate(const char *context, const char *source, const char * /*disambiguation*/,
                      int /*n*/) const override {
        constexpr std::array kTexts{
            std::pair("Printer Properties", "Propriétés de l'imprimante"),
            std::pair("Advanced", "Options avancées"),
        };
        const bool printing = qstrncmp(context, "QPrint", qstrlen("QPrint")) == 0;
        for (const auto &[english, french] : kTexts) {
            if (printing && qstrcmp(source, english) == 0) {
                return QString::fromUtf8(french);
            }
        }
        return {};
    }
};

} // namespace

void SpeakFrench(const QString &translationsFolder) {
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    auto translator = std::make_unique<QTranslator>(QCoreApplication::instance());
    if (translator->load(QStringLiteral("qtbase_fr"), translationsFolder)) {
        QCoreApplication::installTranslator(translator.release());
    }
    QCoreApplication::installTranslator(new Leftovers(QCoreApplication::instance()));
}

} // namespace platform::dialogs
