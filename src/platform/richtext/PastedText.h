#pragma once

#include <QtGlobal>

class QColor;
class QMimeData;
class QTextCursor;

namespace platform::richtext {

/// True when the data holds files of this computer, whose paths are no text.
bool holdsFiles(const QMimeData &data);

/// True when the data holds text that paste() can read; that of files is none.
bool holdsText(const QMimeData &data);

/// Puts the text of the clipboard, or of a drag, in place of the selection, as one step of undo: HTML, RTF or
/// plain text, the first that gives any. Of formatted text stay bold, italic, underline, lists, paragraphs and
/// line breaks, and colours that can be read on the ground of the box; all the rest is left to the document.
/// Plain text takes the format of the cursor. Data without text changes nothing. Reads no file and no network. Returns
/// false, and changes nothing, for more than `longest` characters.
bool paste(QTextCursor &cursor, const QMimeData &data, const QColor &ground, qsizetype longest);

} // namespace platform::richtext
