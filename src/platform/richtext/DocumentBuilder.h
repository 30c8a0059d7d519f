#pragma once

class QTextCursor;
class QTextDocument;

namespace platform::richtext {

struct RichContent;

/// Replaces what the document holds by the content, clears undo and marks the document as unmodified.
void build(QTextDocument &document, const RichContent &content);

/// Puts the content in place of the selection, as one step of undo. Its first paragraph goes on with the one that
/// the cursor is in, unless an item of a list comes into an empty one.
void insert(QTextCursor &cursor, const RichContent &content);

/// Likewise, without the formats of the content: all takes those of the cursor.
void insertPlain(QTextCursor &cursor, const RichContent &content);

} // namespace platform::richtext
