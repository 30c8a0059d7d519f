#pragma once

#include <QString>

namespace bench {

/// A program folder with a book of some size in it.
struct GeneratedBook {
    QString folder;
    int recipes;
    int ingredients;

    /// "20 000 recipes"
    QString name() const;
    QString path() const;
    /// The titles in alphabetic order, one a line, for a program without a database.
    QString titles() const;
    /// The number of a recipe with 12 lines and no photo; those of one index have the same texts in every
    /// book, and lie all over a large one.
    int recipeOfTwelveLines(int index) const;
};

/// Makes a book below a folder; one made since this program was built is used again. The same sizes give the
/// same book every time, apart from the key's salt.
/// @throws std::runtime_error
GeneratedBook generateBook(const QString &below, int recipes, int ingredients);

} // namespace bench
