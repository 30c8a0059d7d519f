#include "RecipeText.h"

#include <QStringList>

#include <algorithm>
#include <array>
#include <set>

using namespace Qt::StringLiterals;

namespace {

struct FieldOfRecipe {
    QStringView name;
    SourceText RecipeText::*text = nullptr;
};

constexpr std::array kFields{
    FieldOfRecipe{u"Titre", &RecipeText::title},
    FieldOfRecipe{u"Durée cuisson", &RecipeText::cookingTime},
    FieldOfRecipe{u"Durée réalisation", &RecipeText::preparationTime},
    FieldOfRecipe{u"Personnes", &RecipeText::persons},
    FieldOfRecipe{u"Type de plat", &RecipeText::dishType},
    FieldOfRecipe{u"Coût", &RecipeText::cost},
    FieldOfRecipe{u"Difficulté", &RecipeText::difficulty},
    FieldOfRecipe{u"Vin", &RecipeText::wine},
    FieldOfRecipe{u"Dessin", &RecipeText::drawing},
};

enum class Section { Fields, Ingredients, Method, Remarks };

SourceText at(const SourceText &line, const QString &text) {
    return {text.trimmed(), line.file, line.line};
}

void readField(RecipeText &recipe, const SourceText &line) {
    const auto colon = line.text.indexOf(u':');
    const QString name = line.text.left(std::max<qsizetype>(colon, 0)).trimmed();
    const auto *const field = std::ranges::find(kFields, QStringView(name), &FieldOfRecipe::name);
    if (field == kFields.end()) {
        throw SourceError(line, u"unknown field \"%1\""_s.arg(name));
    }
    SourceText &text = recipe.*(field->text);
    if (text.line > 0) {
        throw SourceError(line, u"the field \"%1\" is there already"_s.arg(name));
    }
    text = at(line, line.text.mid(colon + 1));
    if (text.text.isEmpty()) {
        throw SourceError(line, u"the field \"%1\" is empty"_s.arg(name));
    }
}

IngredientText readIngredient(const SourceText &line) {
    const QStringList parts = line.text.split(u'|');
    if (parts.size() == 1) {
        return {at(line, {}), at(line, {}), line};
    }
    if (parts.size() != 3) {
        throw SourceError(line, u"a line is \"quantity | measure | ingredient\" or an ingredient alone"_s);
    }
    return {at(line, parts[0]), at(line, parts[1]), at(line, parts[2])};
}

Section readHeading(const SourceText &line) {
    const QString name = line.text.mid(2).chopped(2).trimmed();
    if (name == u"Ingrédients") {
        return Section::Ingredients;
    }
    if (name == u"Préparation") {
        return Section::Method;
    }
    if (name == u"Compléments") {
        return Section::Remarks;
    }
    throw SourceError(line, u"unknown section \"%1\""_s.arg(name));
}

void readLine(RecipeText &recipe, Section section, const SourceText &line) {
    switch (section) {
    case Section::Fields:
        if (!line.text.isEmpty()) {
            readField(recipe, line);
        }
        return;
    case Section::Ingredients:
        if (!line.text.isEmpty()) {
            recipe.ingredients.push_back(readIngredient(line));
        }
        return;
    case Section::Method:
        recipe.method.push_back(line);
        return;
    case Section::Remarks:
        recipe.remarks.push_back(line);
        return;
    }
}

void checkComplete(const RecipeText &recipe, const SourceText &end) {
    for (const FieldOfRecipe &field : kFields) {
        if ((recipe.*(field.text)).line == 0) {
            throw SourceError(end, u"the field \"%1\" is missing"_s.arg(field.name));
        }
    }
    if (recipe.ingredients.empty() || recipe.method.empty() || recipe.remarks.empty()) {
        throw SourceError(end, u"one of the three sections is missing or empty"_s);
    }
}

} // namespace

RecipeText readRecipe(const QString &file) {
    RecipeText recipe;
    Section section = Section::Fields;
    std::set<Section> seen;
    SourceText last{{}, file, 1};
    for (const SourceText &line : readLines(file)) {
        last = line;
        if (line.text.startsWith(u"== ") && line.text.endsWith(u" ==")) {
            section = readHeading(line);
            if (!seen.insert(section).second) {
                throw SourceError(line, u"this section is there already"_s);
            }
        } else {
            readLine(recipe, section, line);
        }
    }
    checkComplete(recipe, last);
    return recipe;
}
