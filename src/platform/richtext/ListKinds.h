#pragma once

#include "RichContent.h"

#include <QTextListFormat>

namespace platform::richtext {

/// A kind of list in a document and in the \pn group of RTF.
struct ListForm {
    ListKind kind;
    QTextListFormat::Style style;
    const char *word;
};

/// The form of a kind of list; of bullets for ListKind::None.
const ListForm &listForm(ListKind kind);

/// The form of a document's list style. Circles and squares are bullets too.
const ListForm &listForm(QTextListFormat::Style style);

/// The kind of list that a bullet or number written out before a paragraph belongs to; ListKind::None for
/// blanks.
ListKind kindOfMarker(QStringView marker);

} // namespace platform::richtext
