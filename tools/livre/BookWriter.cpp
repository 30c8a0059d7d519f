#include "BookWriter.h"

#include "Markup.h"
#include "RecipeText.h"
#include "Vocabulary.h"

#include "platform/database/Database.h"
#include "platform/richtext/RichText.h"
#include "store/Livre.h"
#include "store/Programme.h"
#include "store/Schema.h"
#include "store/Vocabulaires.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTextDocument>
#include <QVariant>

#include <algorithm>
#include <filesystem>

using namespace Qt::StringLiterals;
using platform::database::Database;
using platform::database::Recordset;

namespace {

struct Vocabularies {
    explicit Vocabularies(const QString &folder)
        : cookingTimes(folder, store::kCategorie),
          preparationTimes(folder, store::kDureeReal),
          persons(folder, store::kVerre),
          dishTypes(folder, store::kRealisation),
          wines(folder, store::kVin),
          ingredients(folder, store::kIngredient),
          quantities(folder, store::kQuantite),
          measures(folder, store::kMesure) {}

    Vocabulary cookingTimes;
    Vocabulary preparationTimes;
    Vocabulary persons;
    Vocabulary dishTypes;
    Vocabulary wines;
    Vocabulary ingredients;
    Vocabulary quantities;
    Vocabulary measures;
};

struct IngredientRow {
    int ingredient;
    int quantity;
    int measure;
};

/// A recipe as the tables hold it.
struct RecipeRow {
    std::vector<std::pair<store::ChampRecette, QVariant>> columns;
    std::vector<IngredientRow> ingredients; ///< the last first, since they are read newest first
    QString picture;                        ///< path of the JPEG file
    QString photo;                          ///< its name in the book
};

/// A leading article moves behind the title, so that the list is in the order of the dishes.
QString storedTitle(const QString &title) {
    return title.startsWith(u"Le ", Qt::CaseInsensitive) ? title.mid(3).trimmed() + u" (Le)" : title;
}

template <typename Classes>
int codeOf(const SourceText &word, const Classes &classes) {
    const auto *const found = std::ranges::find(classes, QStringView(word.text));
    if (found == classes.end()) {
        throw SourceError(word, u"\"%1\" is no class of cost or difficulty"_s.arg(word.text));
    }
    return static_cast<int>(found - classes.begin());
}

QString richText(const std::vector<SourceText> &markup) {
    QTextDocument document;
    renderMarkup(markup, document);
    return platform::richtext::toRtf(document);
}

std::vector<IngredientRow> ingredientRows(const RecipeText &recipe, Vocabularies &vocabularies) {
    const auto numberOrBlank = [](Vocabulary &vocabulary, const SourceText &text) {
        return text.text.isEmpty() ? vocabulary.numberOfBlank() : vocabulary.numberOf(text);
    };
    std::vector<IngredientRow> rows;
    rows.reserve(recipe.ingredients.size());
    for (const IngredientText &line : recipe.ingredients) {
        rows.push_back({vocabularies.ingredients.numberOf(line.ingredient),
                        numberOrBlank(vocabularies.quantities, line.quantity),
                        numberOrBlank(vocabularies.measures, line.measure)});
    }
    std::reverse(rows.begin(), rows.end());
    return rows;
}

RecipeRow recipeRow(const RecipeText &recipe, Vocabularies &vocabularies, const QString &pictures) {
    RecipeRow row;
    row.picture = pictures + u'/' + recipe.drawing.text + u".jpg";
    if (!QFileInfo::exists(row.picture)) {
        throw SourceError(recipe.drawing, u"no picture %1"_s.arg(row.picture));
    }
    // The picture is a file of that name, which a list of the build must be able to hold.
    if (recipe.title.text.contains(QRegularExpression(u"[/;\\[\\]\\\\]"_s))) {
        throw SourceError(recipe.title, u"a title without / \\ ; [ ] is expected"_s);
    }
    row.photo = recipe.title.text + u".jpg";
    using enum store::ChampRecette;
    row.columns = {
        {Recette, storedTitle(recipe.title.text)},
        {NCategorie, vocabularies.cookingTimes.numberOf(recipe.cookingTime)},
        {Nverre, vocabularies.persons.numberOf(recipe.persons)},
        {Photo, row.photo},
        {Nreal, vocabularies.dishTypes.numberOf(recipe.dishType)},
        {preparation, richText(recipe.method)},
        {Deco, richText(recipe.remarks)},
        {Cout, codeOf(recipe.cost, store::Cout)},
        {difficulte, codeOf(recipe.difficulty, store::Difficulte)},
        {Teneur, vocabularies.wines.numberOf(recipe.wine)},
        {NDureeReal, vocabularies.preparationTimes.numberOf(recipe.preparationTime)},
    };
    row.ingredients = ingredientRows(recipe, vocabularies);
    return row;
}

std::vector<RecipeRow> readRecipes(const BookPlaces &places, Vocabularies &vocabularies) {
    std::vector<RecipeRow> rows;
    const QDir folder(places.sources + u"/recettes");
    for (const QString &name : folder.entryList({u"*.txt"_s}, QDir::Files, QDir::Name)) {
        rows.push_back(recipeRow(readRecipe(folder.filePath(name)), vocabularies, places.pictures));
    }
    return rows;
}

Recordset openTable(Database &book, const store::Table &table) {
    return book.OpenRecordset(u"SELECT * From "_s + table.nom);
}

void writeVocabulary(Database &book, const Vocabulary &vocabulary) {
    Recordset rows = openTable(book, vocabulary.table());
    int number = 0;
    for (const QString &text : vocabulary.texts()) {
        rows.AddNew();
        rows.Fields(0) = ++number;
        rows.Fields(1) = text;
        // Columns without a meaning hold a blank in the rows that the program makes.
        for (int position = 2; position < static_cast<int>(vocabulary.table().champs.size()); ++position) {
            rows.Fields(position) = u" "_s;
        }
        rows.Update();
    }
}

void writeIngredients(Recordset &lines, int recipe, const std::vector<IngredientRow> &rows) {
    for (const IngredientRow &row : rows) {
        lines.AddNew();
        lines.Fields(u"Numero") = recipe;
        lines.Fields(u"NIngre") = row.ingredient;
        lines.Fields(u"NQuantite") = row.quantity;
        lines.Fields(u"NMesure") = row.measure;
        lines.Update();
    }
}

void writeRecipes(Database &book, const std::vector<RecipeRow> &rows) {
    Recordset recipes = openTable(book, store::kCocktails);
    Recordset lines = openTable(book, store::kIngre);
    int number = 0;
    for (const RecipeRow &row : rows) {
        recipes.AddNew();
        recipes.Fields(0) = ++number;
        for (const auto &[column, value] : row.columns) {
            recipes.Fields(store::Position(column)) = value;
        }
        recipes.Update();
        writeIngredients(lines, number, row.ingredients);
    }
}

void writeDatabase(const QString &folder, const Vocabularies &vocabularies,
                   const std::vector<RecipeRow> &recipes) {
    store::DefinirDossierProgramme(folder);
    store::CreerLivre(store::CheminBase());
    Database book = store::OuvrirLivre();
    for (const Vocabulary *const vocabulary :
         {&vocabularies.cookingTimes, &vocabularies.preparationTimes, &vocabularies.persons,
          &vocabularies.dishTypes, &vocabularies.wines, &vocabularies.ingredients, &vocabularies.quantities,
          &vocabularies.measures}) {
        writeVocabulary(book, *vocabulary);
    }
    writeRecipes(book, recipes);
}

std::filesystem::path nativePath(const QString &path) {
    return path.toStdU16String();
}

void copyPhotos(const std::vector<RecipeRow> &recipes, const QString &folder) {
    std::filesystem::create_directory(nativePath(folder));
    for (const RecipeRow &recipe : recipes) {
        std::filesystem::copy_file(nativePath(recipe.picture), nativePath(folder + u'/' + recipe.photo));
    }
}

} // namespace

void writeBook(const BookPlaces &places) {
    Vocabularies vocabularies(places.sources + u"/vocabulaires");
    const std::vector<RecipeRow> recipes = readRecipes(places, vocabularies);

    // Made in memory where there is such a place, since every row is committed and waits for the disk.
    const QString memory = u"/dev/shm"_s;
    const QTemporaryDir work((QFileInfo(memory).isWritable() ? memory : QDir::tempPath()) + u"/livre-XXXXXX");
    if (!work.isValid()) {
        throw std::runtime_error(work.errorString().toStdString());
    }
    writeDatabase(work.path(), vocabularies, recipes);

    // Moved into place when complete, so that a build that is broken off leaves no half book.
    const std::filesystem::path output = nativePath(places.output);
    std::filesystem::remove_all(output / "photos");
    copyPhotos(recipes, places.output + u"/photos");
    std::filesystem::copy_file(nativePath(store::CheminBase()), output / "db.neuf",
                               std::filesystem::copy_options::overwrite_existing);
    std::filesystem::rename(output / "db.neuf", output / "db.mdb");
}
