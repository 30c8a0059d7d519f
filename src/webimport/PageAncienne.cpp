#include "PageAncienne.h"

#include <QFile>

namespace webimport {

QString ScriptPageAncienne() {
    QFile script(QStringLiteral(":/webimport/page-ancienne.js"));
    // A resource of this library: it is there whenever the library is linked.
    if (!script.open(QIODevice::ReadOnly)) {
        qFatal("page-ancienne.js is missing");
    }
    return QString::fromUtf8(script.readAll());
}

} // namespace webimport
