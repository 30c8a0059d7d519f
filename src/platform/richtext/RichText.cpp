#include "RichText.h"

#include "DocumentBuilder.h"
#include "RichContent.h"
#include "RtfReader.h"

namespace platform::richtext {

namespace {

RichContent read(QStringView stored) {
    return isRtf(stored) ? readRtf(stored) : readPlain(stored);
}

} // namespace

bool isRtf(QStringView stored) {
    return stored.trimmed().startsWith(u"{\\rtf");
}

void load(QTextDocument &document, const QString &stored) {
    build(document, read(stored));
}

QString plainText(QStringView stored) {
    return read(stored).plainText();
}

} // namespace platform::richtext
