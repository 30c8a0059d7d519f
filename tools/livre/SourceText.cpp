#include "SourceText.h"

#include <QFile>
#include <QStringDecoder>

using namespace Qt::StringLiterals;

SourceError::SourceError(const SourceText &where, const QString &reason)
    : std::runtime_error(u"%1:%2: %3"_s.arg(where.file, QString::number(where.line), reason).toStdString()) {}

std::vector<SourceText> readLines(const QString &file) {
    QFile source(file);
    if (!source.open(QIODevice::ReadOnly)) {
        throw SourceError({{}, file, 1}, source.errorString());
    }

    std::vector<SourceText> lines;
    QStringDecoder utf8(QStringDecoder::Utf8);
    while (!source.atEnd()) {
        const QByteArray bytes = source.readLine();
        const int number = static_cast<int>(lines.size()) + 1;
        const QString text = utf8.decode(bytes);
        if (utf8.hasError()) {
            throw SourceError({{}, file, number}, u"not UTF-8"_s);
        }
        lines.push_back({text.trimmed(), file, number});
    }
    return lines;
}
