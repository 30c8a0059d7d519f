#pragma once

#include <QString>
#include <QStringView>
#include <limits>

class QTextDocument;

namespace platform::richtext {

/// True when the stored text is RTF (begins with "{\rtf" after blanks), false for plain text.
bool isRtf(QStringView stored);

/// Replaces the document's content by the stored text, RTF or plain text as it stands. Any input gives some
/// text. Sets only what the text sets: font, size and colour stay the document's where it sets none. Undo is
/// cleared, the document counts as unmodified. Of a text of more than `longest` characters the document gets only the
/// beginning; false then. A text with long runs without a blank is wrapped anywhere.
bool load(QTextDocument &document, const QString &stored,
          qsizetype longest = std::numeric_limits<qsizetype>::max());

/// The document as RTF 1.x in 7-bit ASCII (code page 1252, other characters as \uN). Written are characters,
/// paragraphs with alignment, margins, tab stops and lists, and the font, size, colours, bold, italic,
/// underline and strike that the formats set; load() reads an equal document back. Lengths: 15 twips to a
/// pixel of the document.
QString toRtf(const QTextDocument &document);

/// The stored text without its formatting, as QTextDocument::toPlainText() gives it after load().
QString plainText(QStringView stored);

} // namespace platform::richtext
