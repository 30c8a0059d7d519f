#pragma once

#include "SourceText.h"

#include <QString>

#include <vector>

/// One line of the ingredients; an absent quantity or measure has an empty text.
struct IngredientText {
    SourceText quantity;
    SourceText measure;
    SourceText ingredient;
};

/// A recipe as its source file has it; the format is described in main.cpp.
struct RecipeText {
    SourceText title;
    SourceText cookingTime;
    SourceText preparationTime;
    SourceText persons;
    SourceText dishType;
    SourceText cost;
    SourceText difficulty;
    SourceText wine;
    SourceText drawing;
    std::vector<IngredientText> ingredients;
    std::vector<SourceText> method;  ///< lines of markup
    std::vector<SourceText> remarks; ///< lines of markup
};

/// Reads a recipe file.
/// @throws SourceError for an unknown, repeated or missing field or section
RecipeText readRecipe(const QString &file);
