// Feeds the reader any text, and expects what it made of it to survive being written and read again.
#include "RtfReader.h"
#include "platform/richtext/RichText.h"

#include <QGuiApplication>
#include <QTextDocument>
#include <algorithm>
#include <cstdint>
#include <cstdlib>

using namespace platform::richtext;

namespace {

void require(bool holds) {
    if (!holds) {
        std::abort();
    }
}

/// The reader takes any text, also one that does not begin as RTF does.
void requireWholeContent(const QString &source) {
    const RichContent content = readRtf(source);
    require(!content.paragraphs.empty());
    require(content.paragraphs.back().end == content.text.size());
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static const QGuiApplication application(*argc, *argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    const QString stored = QString::fromUtf8(reinterpret_cast<const char *>(data), qsizetype(size));
    requireWholeContent(stored);

    QTextDocument document;
    load(document, stored);
    require(plainText(stored) == document.toPlainText());

    const QString written = toRtf(document);
    require(isRtf(written));
    require(std::all_of(written.begin(), written.end(), [](QChar c) { return c.unicode() < 0x80; }));

    QTextDocument again;
    load(again, written);
    require(toRtf(again) == written);
    require(again.toPlainText() == document.toPlainText());
    return 0;
}
