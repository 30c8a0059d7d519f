#pragma once

#include "SourceText.h"

#include <QString>

#include <vector>

class QTextDocument;

/// Fills an empty document from the lines of a markup text. An empty line separates paragraphs, "- " begins a
/// bullet and "1. " a numbered step, any other line goes on with the paragraph before it; **bold**, *italic*.
/// Apostrophes and blanks become those of French typography. Colours are left to the reader.
/// @throws SourceError for a mark that is not closed and for a step out of its order
void renderMarkup(const std::vector<SourceText> &lines, QTextDocument &document);

/// French typography: ’ for ', and a no-break blank before : ; ! ? », after «, and between a number and its
/// unit.
QString typeset(const QString &text);
