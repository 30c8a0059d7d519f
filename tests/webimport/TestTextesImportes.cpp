// The pieces that have rules of their own: sections, ingredients, numbers, marks, the temporary file.
#include "webimport/ErreurExecution.h"
#include "webimport/FichierTemporaire.h"
#include "webimport/Ingredients.h"
#include "webimport/LireSection.h"
#include "webimport/Marquage.h"
#include "webimport/Nombres.h"
#include "webimport/Positions.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBlock>
#include <QTextDocument>

using namespace webimport;

class TestTextesImportes : public QObject {
    Q_OBJECT

private:
    /// Runs of the document as text, with "*" before what is bold and the colour where it is not the plain
    /// one.
    static QString marque(const QString &texte) {
        QTextDocument document;
        document.setPlainText(texte);
        MarquerTexte(document, kCouleursComplements);
        QString resultat;
        for (QTextBlock bloc = document.begin(); bloc.isValid(); bloc = bloc.next()) {
            for (auto i = bloc.begin(); !i.atEnd(); ++i) {
                const QTextCharFormat format = i.fragment().charFormat();
                const bool ordinaire = format.foreground().color() == Qt::white;
                resultat += (format.fontWeight() == QFont::Bold ? u"*"_qs : QString()) +
                            (ordinaire ? QString() : format.foreground().color().name()) + u'[' +
                            i.fragment().text() + u']';
            }
            resultat += u'/';
        }
        return resultat;
    }

private Q_SLOTS:

    void init() { QLocale::setDefault(QLocale(QLocale::French, QLocale::France)); }

    void sections() {
        const auto lire = [](QStringView ligne, QStringView debut, QStringView fin, QString champ = {}) {
            LireSection(ligne, debut, fin, champ);
            return champ;
        };
        QCOMPARE(lire(u"<!-- PRÉP --> 2 h <!-- Fin Prép -->x", u"<!-- Prép -->", u"<!-- FIN PRÉP -->"),
                 u"2 h"_qs);
        QCOMPARE(lire(u"Straße <B> miel</b>", u"<b>", u"</B>"),
                 u"miel"_qs); // a letter that grows in upper case
        QCOMPARE(lire(u"<B>miel \t ", u"<B>", u"</B>"), u"miel \t"_qs);
        QCOMPARE(lire(u" miel</B>sel", u"", u"</B>"), u"miel"_qs);
        QCOMPARE(lire(u"</B>sel", u"", u"</B>"), u"</B>sel"_qs); // an end at the first character is missed
        QCOMPARE(lire(u"miel</B>", u"<B>", u"</B>"), QString());
        QCOMPARE(lire(u"<B>miel</B>", u"<B>", u"</B>", u"plein"_qs), u"plein"_qs);
    }

    void ingredients() {
        for (const auto &[piece, attendue] : std::initializer_list<std::pair<QString, QStringList>>{
                 {u"2 cuil. à soupe d'huile"_qs, {u"2 "_qs, u"cuil. à soupe d'"_qs, u"huile"_qs}},
                 {u"2,5 l. de lait"_qs, {u"2,5 "_qs, u"l. de"_qs, u" lait"_qs}},
                 {u"quelques feuilles de menthe"_qs, {u"quelques "_qs, u""_qs, u"feuilles de menthe"_qs}},
                 {u"10gr.de sel"_qs, {u""_qs, u"10gr.de"_qs, u" sel"_qs}},
                 {u"sel 1 cuil. à café rase"_qs, {u"sel 1 cuil. à café "_qs, u""_qs, u"rase"_qs}},
                 {u"2 Cuil. à soupe de sel"_qs, {u"2 "_qs, u"Cuil. "_qs, u"à soupe de sel"_qs}},
                 {u"1/2 citron"_qs, {u""_qs, u""_qs, u"1/2 citron"_qs}},
                 {u"3 œufs"_qs, {u"3 "_qs, u""_qs, u"œufs"_qs}},
             }) {
            LigneIngredient ligne;
            DecouperIngredient(piece, ligne);
            QCOMPARE((QStringList{ligne.Quantite, ligne.Mesure, ligne.Ingredient}), attendue);
        }
    }

    void hyphensCutRows() {
        std::vector<LigneIngredient> lignes;
        RemplirLignes(u"rien", lignes);
        QVERIFY(lignes.empty());
        RemplirLignes(u"- crème demi-écrémée\r\n-", lignes);
        QCOMPARE(lignes,
                 (std::vector<LigneIngredient>{{{}, {}, u"crème demi"_qs}, {{}, {}, u"écrémée"_qs}, {}}));
    }

    void numbers() {
        for (const QStringView oui :
             {u"2 ", u" \u00A0-3", u"+1,5", u"1\u00A0000", u"1\u202F000,5", u",5", u"5,", u"1e3", u"2E-1"}) {
            QVERIFY2(EstNumerique(oui), qPrintable(oui.toString()));
        }
        for (const QStringView non :
             {u"", u" ", u"1/2", u"2.5", u"3h", u"-", u",", u"1e", u"e5", u"1 2", u"½", u"٣", u"9&"}) {
            QVERIFY2(!EstNumerique(non), qPrintable(non.toString()));
        }
        QCOMPARE(LireNombre(u" 1\u00A0234,5e1 "), 12345.);
        QVERIFY(EstNumerique(u"1,234.5", QLocale(QLocale::English)));
    }

    void marks() {
        QCOMPARE(marque(u"a <B>titre</B> b"_qs), u"[a ]*#0000ff[titr][e b]/"_qs);
        QCOMPARE(marque(u"<B>un</B>\r\n<B>deux\r\ntrois</B>"_qs),
                 u"*#0000ff[u][n]/*#0000ff[deux]/*#0000ff[troi][s]/"_qs);
        QCOMPARE(marque(u"</B>un<B>"_qs), u"[un]/"_qs);
        QCOMPARE(marque(u"<b>un</b>"_qs), u"[<b>un</b>]/"_qs);
        // The opening tag is bold but for its bracket, and so is no text of its own.
        QCOMPARE(marque(u"<B></B>"_qs), u"*#0000ff[<B][>]/"_qs);
    }

    void temporaryFile() {
        QCOMPARE(EnregistrementDuTexte(u"é€Ω"_qs), QByteArray("\x08\0\x03\0\xE9\x80?", 7));
        QCOMPARE(TexteDuFichier("\xE9\x80\x81\r"), u"é€\u0081\r"_qs);

        const QTemporaryDir dossier;
        const QString chemin = dossier.filePath(u"temp.txt"_qs);
        EcrireTexte(chemin, u"ancienne page"_qs);
        EcrireTexte(chemin, u"page"_qs);
        QCOMPARE(LireTexte(chemin).sliced(4), u"pageenne page"_qs);
        QVERIFY_THROWS_EXCEPTION(ErreurExecution, LireTexte(dossier.filePath(u"absent"_qs)));
        QVERIFY_THROWS_EXCEPTION(ErreurExecution, EcrireTexte(dossier.path(), QString()));
    }
};

QTEST_MAIN(TestTextesImportes)
#include "TestTextesImportes.moc"
