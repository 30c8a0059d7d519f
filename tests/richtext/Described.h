#pragma once

#include <QString>

class QTextDocument;

/// Line ends as "|", line breaks as "/".
QString onOneLine(QString text);

/// A document as text: "<paragraph format>" where one is set, runs as "[format:text]" where one is set, and
/// the format of the paragraph's end as "[format]"; paragraphs parted by "|". Lengths are in twips.
QString described(const QTextDocument &document);
