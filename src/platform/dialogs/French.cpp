#include "French.h"

#include <QCoreApplication>
#include <QTranslator>
#include <memory>

namespace platform::dialogs {

void SpeakFrench(const QString &translationsFolder) {
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    auto translator = std::make_unique<QTranslator>(QCoreApplication::instance());
    if (translator->load(QStringLiteral("qtbase_fr"), translationsFolder)) {
        QCoreApplication::installTranslator(translator.release());
    }
}

} // namespace platform::dialogs
