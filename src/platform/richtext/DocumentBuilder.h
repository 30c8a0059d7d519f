#pragma once

class QTextDocument;

namespace platform::richtext {

struct RichContent;

/// Replaces what the document holds by the content, clears undo and marks the document as unmodified.
void build(QTextDocument &document, const RichContent &content);

} // namespace platform::richtext
