#pragma once

#include "GeneratedBook.h"
#include "Report.h"

namespace bench {

/// A row read, and a value changed, from opening the book to closing it.
void measureDatabase(const GeneratedBook &book, Report &report);

/// A recipe saved with eleven lines and other values that are all new to the book.
void measureCreation(const GeneratedBook &book, Report &report);

/// The list of recipes, and that of ingredients, loaded into the shown main window.
void measureList(const GeneratedBook &book, Report &report);
void measureIngredients(const GeneratedBook &book, Report &report);

/// A recipe displayed and painted, in a small and in a large book.
void measureRecipe(const GeneratedBook &small, const GeneratedBook &large, Report &report);

/// The list of all ingredients opened over a line of a recipe, and painted.
void measureChoices(const GeneratedBook &book, Report &report);

/// The rows of the search read, listed and painted, and one brought up in the main window.
void measureSearch(const GeneratedBook &book, Report &report);

/// The sheet walked to the next recipe of the list, until it is painted.
void measureSheet(const GeneratedBook &book, Report &report);

/// A key pressed in a long text, alone and with the text stored.
void measureKeyStroke(const GeneratedBook &book, Report &report);

/// A quarter turn of a photograph, against the arithmetic that it is defined by.
void measureTurn(Report &report);

/// A recipe page of each layout from captured text to fields, a typical one, and large ones against each other.
void measureImport(Report &report);

/// From the start of the process to the painted main window, and the memory it has taken by then; offscreen,
/// and on a virtual X display where there is one.
void measureStart(const GeneratedBook &book, Report &report);

} // namespace bench
