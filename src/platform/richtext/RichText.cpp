#include "RichText.h"

#include "DocumentBuilder.h"
#include "RichContent.h"
#include "RtfReader.h"

namespace platform::richtext {

namespace {

RichContent read(QStringView stored, qsizetype longest = kAnyLength) {
    return isRtf(stored) ? readRtf(stored, longest) : readPlain(stored, longest);
}

} // namespace

bool isRtf(QStringView stored) {
    return stored.trimmed().startsWith(u"{\\rtf");
}

bool load(QTextDocument &document, const QString &stored, qsizetype longest) {
    const RichContent content = read(stored, longest);
    build(document, content);
    return content.isWhole;
}

QString plainText(QStringView stored) {
    return read(stored).plainText();
}

} // namespace platform::richtext
