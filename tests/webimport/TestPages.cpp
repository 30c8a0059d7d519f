// Whole pages of both layouts, the branches in which they differ, and what a page leaves to the next one.
#include "webimport/ErreurExecution.h"
#include "webimport/Page.h"
#include "webimport/PageCommentee.h"
#include "webimport/PageDebutFin.h"

#include <QElapsedTimer>
#include <QFile>
#include <QTest>

#include <algorithm>

using namespace webimport;

namespace {

QString fichier(const QByteArray &nom) {
    QFile page(QStringLiteral(SAVOREL_PAGES "/") + QString::fromLatin1(nom));
    return page.open(QIODevice::ReadOnly) ? QString::fromUtf8(page.readAll()).replace(u"\n"_qs, u"\r\n"_qs)
                                          : QString();
}

PageCapturee capture(const QString &texte,
                     const QString &adresse = u"http://www.latablededemain.example/r"_qs) {
    return {texte, adresse, {u"http://www.latablededemain.example"_qs, u"latablededemain.example"_qs}};
}

ChampsPage commentee(const QString &texte,
                     const QString &adresse = u"http://www.latablededemain.example/r"_qs) {
    return ExtrairePageCommentee(capture(texte, adresse), [](const QString & /*ligne*/) {});
}

ChampsPage debutFin(const QString &texte,
                    const QString &adresse = u"http://www.latablededemain.example/r"_qs) {
    MemoireImport memoire;
    return ExtrairePageDebutFin(capture(texte, adresse), memoire);
}

/// Quantity, measure and ingredient of each row.
using Lignes = QList<QStringList>;

Lignes lignes(const ChampsPage &champs) {
    Lignes textes;
    for (const LigneIngredient &ligne : champs.Lignes) {
        textes.append({ligne.Quantite, ligne.Mesure, ligne.Ingredient});
    }
    return textes;
}

QString type(const ChampsPage &champs) {
    return champs.Liste[ListeTypeDePlat].texte;
}

QString methode(const ChampsPage &champs) {
    return champs.Saisie[SaisieMethode].texte;
}

QString complements(const ChampsPage &champs) {
    return champs.Saisie[SaisieComplements].texte;
}

/// The lines of all fields, and the rows with "|" between their columns.
QStringList resume(const ChampsPage &champs) {
    QStringList textes{champs.TitreRecette.texte, champs.calorie.texte, champs.NomPhoto, champs.DReal.texte};
    for (const ChampPage &champ : champs.Liste) {
        textes += champ.texte;
    }
    for (const QStringList &ligne : lignes(champs)) {
        textes += ligne.join(u'|');
    }
    for (const ChampPage &champ : champs.Saisie) {
        textes += champ.texte;
    }
    return textes.join(u"\r\n"_qs).split(u"\r\n"_qs);
}

constexpr qsizetype kGrande = 5 * 1024 * 1024;

} // namespace

class TestPages : public QObject {
    Q_OBJECT

private Q_SLOTS:

    void initTestCase() { QLocale::setDefault(QLocale(QLocale::French, QLocale::France)); }

    void wholePages() {
        for (const QByteArray &nom : {QByteArray("commentee"), QByteArray("debut-fin")}) {
            const QString texte = fichier(nom + ".html");
            const bool secondLayout = nom == "debut-fin";
            QVERIFY(EstPageDeRecette(texte));
            QCOMPARE(EstPageDebutFin(texte), secondLayout);
            QCOMPARE(resume(secondLayout ? debutFin(texte) : commentee(texte)),
                     fichier(nom + ".txt").trimmed().split(u"\r\n"_qs));
        }
    }

    void dishTypeOfACommentedPage() {
        const auto lire = [](const QString &section, const QString &adresse) {
            return type(commentee(u"<HTML>\r\n<!-- TYPE DE PLAT -->" + section + u"<!-- FIN TYPE DE PLAT -->",
                                  adresse));
        };
        QCOMPARE(lire(u"type-2"_qs, u"r?id=1"_qs), u"Plat"_qs);
        QCOMPARE(lire(u"type-2"_qs, u"r?&groupid=099"_qs),
                 u"Poissons"_qs); // the address first, two digits of it
        QCOMPARE(lire(u"type-03"_qs, u"r?&groupid=99"_qs), u"Desserts"_qs);
        QCOMPARE(lire(u"type-07"_qs, u"r"_qs), u"type-07"_qs);
        QVERIFY_THROWS_EXCEPTION(IncompatibiliteDeType, lire(u"type-2"_qs, u"r?&groupid=9&p=1"_qs));
        QVERIFY_THROWS_EXCEPTION(IncompatibiliteDeType, lire(u"type-2.gif"_qs, u"r"_qs));
    }

    void dishTypeOfTheSecondLayoutIsTheTitle() {
        const QString texte = u"<HTML>\r\n<!--DEBUT  TITRE DE LA RECETTE -->Daube<BR>"_qs;
        const ChampsPage champs = debutFin(texte);
        QCOMPARE(type(champs), u"Daube<BR>"_qs);
        // A second line that is empty leaves the first one as it is.
        QCOMPARE(champs.TitreRecette.texte, u"Daube<BR>"_qs);
        QCOMPARE(type(debutFin(texte, u"r?&groupid=15"_qs)), u"Viandes"_qs);
        QCOMPARE(commentee(u"<!-- TITRE RECETTE -->Daube<BR>"_qs).TitreRecette.texte, u"Daube"_qs);
    }

    void secondLineOfTheTitle() {
        const auto deux = [](QStringView suite) {
            return debutFin(u"<!--DEBUT  TITRE DE LA RECETTE -->Daube<BR>" + suite).calorie.texte;
        };
        const auto une = [](QStringView suite) {
            return commentee(u"<!-- TITRE RECETTE -->Daube<BR>" + suite).calorie.texte;
        };
        QCOMPARE(deux(u"<FONT color=#ffcc00>de fête</FONT>"), u"de fête"_qs);
        QCOMPARE(une(u"<FONT size=1>de fête</FONT>"), u"size=1>de fête"_qs);
        QCOMPARE(une(u"de fête"), u"de fête"_qs);
        QVERIFY_THROWS_EXCEPTION(ArgumentIncorrect, deux(u"de fête"));
        QVERIFY_THROWS_EXCEPTION(ArgumentIncorrect, deux(u"a</FONT><FONT color=#ffcc00>de fête</FONT>"));
        QVERIFY_THROWS_EXCEPTION(ArgumentIncorrect, une(u"a</FONT><FONT color=#663300>de fête</FONT>"));
    }

    void picture() {
        const auto lire = [](const QString &section) {
            return commentee(u"<!-- IMAGES RECETTE -->" + section + u"<!-- FIN IMAGES RECETTE -->").NomPhoto;
        };
        const QString site = u"http://www.latablededemain.example/"_qs;
        QCOMPARE(lire(u"<IMG src=\"http://latablededemain.example/a.jpg\">"_qs),
                 u"http://latablededemain.example/a.jpg"_qs);
        QCOMPARE(lire(u"<IMG SRC=\"p/a.JPG\" width=2>"_qs), site + u"p/a.JPG");
        QCOMPARE(lire(u"<IMG src=\"p/a.gif\">"_qs), site + u"p/a.gif");
        QCOMPARE(lire(u"<IMG src=\"p/a.png\">"_qs), site + u"\"p/a.png\">");
        QCOMPARE(lire(u"sans image"_qs), QString());
    }

    void levels() {
        const auto images = [](int nombre, QStringView devant) {
            const ChampsPage champs = debutFin(u"<!-- A REPETER SI PLUS CHERE -->" + devant +
                                               u"images/cout.gif "_qs.repeated(nombre) + u"Budget</FONT>");
            return champs.Liste[ListeCout].texte;
        };
        QCOMPARE(images(5, u""), u"Très Cher"_qs); // one at the very first position
        QVERIFY(images(5, u"<").contains(u"images/cout"));

        const auto difficulte = [](QStringView section) {
            const ChampsPage champs =
                commentee(u"<!-- difficulte -->" + section + u"<!-- fin difficulte -->");
            return champs.Liste[ListeDifficulte].texte;
        };
        QCOMPARE(difficulte(u"difficulte-04"), u"Très Difficile"_qs);
        QCOMPARE(difficulte(u"difficulte-05"), u"difficulte-05"_qs);
        QVERIFY_THROWS_EXCEPTION(IncompatibiliteDeType, difficulte(u"difficulte-x1"));
    }

    void ingredientsOfACommentedPage() {
        const auto lire = [](const QString &liste) {
            return lignes(commentee(u"<!-- debut ingredient -->\r\n" + liste));
        };
        // The closing line is collected whole, and what stands before its end tag once more.
        QCOMPARE(lire(u"<LI>2 pommes</LI><!-- fin ingredient -->"_qs),
                 (Lignes{{u"2 "_qs, u""_qs, u"pommes</LI><!"_qs},
                         {u""_qs, u""_qs, u""_qs},
                         {u""_qs, u""_qs, u"fin ingredient"_qs},
                         {u""_qs, u""_qs, u""_qs},
                         {u""_qs, u""_qs, u">"_qs},
                         {u"2 "_qs, u""_qs, u"pommes"_qs}}));
        // The blank before a line end stays, and "DL" drops its line wherever it stands.
        QCOMPARE(lire(u" <DT>sel \r\n<DT>DL\r\n<DT>poivre</DT></DL><!-- fin ingredient -->"_qs),
                 (Lignes{{u""_qs, u""_qs, u"sel "_qs}, {u""_qs, u""_qs, u"poivre"_qs}}));
        QCOMPARE(lire(u"<LI>2 pommes"_qs), Lignes());
    }

    void ingredientsOfTheSecondLayout() {
        const auto lire = [](const QString &liste) {
            return lignes(debutFin(u"<!-- DEBUT INGREDIENTS  -->" + liste));
        };
        QCOMPARE(lire(u" - sel\r\n- poivre\r\nnoir\r\n<TD><!-- FIN INGREDIENTS -->"_qs),
                 (Lignes{{u""_qs, u""_qs, u"sel"_qs}, {u""_qs, u""_qs, u"poivre noir"_qs}}));
        // Closed twice, and opened once more.
        QCOMPARE(lire(u"sel\r\n<TD><!-- FIN INGREDIENT -->\r\n<TD><!-- FIN INGREDIENTS -->\r\n"
                      "<!-- DEBUT INGREDIENTS  -->ail\r\n<TD><!-- FIN INGREDIENT -->"_qs),
                 (Lignes{{u""_qs, u""_qs, u"sel"_qs}, {u""_qs, u""_qs, u"ail"_qs}}));
        const QString personnes = u"<!-- DEBUT NOMBRE DE PERSONNE -->4<!-- FIN NOMBRE PERSONNE -->"_qs;
        QCOMPARE(lignes(debutFin(personnes + u"<!-- DEBUT INGREDIENTS  -->- 2 pommes, rouges<BR>sel"
                                             "<!-- FIN INGREDIENTS -->")),
                 (Lignes{{u"2 "_qs, u""_qs, u"pommes  rouges"_qs}, {u""_qs, u""_qs, u"sel"_qs}}));
    }

    void methodWithoutPictures() {
        const QString etapes = u"perdu <IMG border=0>Hachez.<BR> <IMG border=0>Cuisez.<BR>Au four."_qs;
        QCOMPARE(methode(commentee(etapes + u"<!--x--><!-- FIN RECETTE -->")),
                 u"- Hachez.\r\n\r\n- Cuisez.Au four. x-->"_qs);

        const QString ouverture = u"<!-- DEBUT EXPLICATION RECETTE -->\r\n"_qs;
        const ChampsPage champs = debutFin(ouverture + etapes + u"<!-- FIN EXPLICATION RECETTE -->");
        QCOMPARE(methode(champs), u"- Hachez.\r\n\r\n- Cuisez.Au four."_qs);
        QCOMPARE(complements(champs), u"Au four."_qs);
        // Opened on the same line, such steps are not looked for.
        QCOMPARE(methode(debutFin(u"<!-- DEBUT EXPLICATION RECETTE -->" + etapes)), QString());
        // A tip behind its picture overwrites the other.
        QCOMPARE(complements(debutFin(ouverture + etapes + u"\r\nastuces.gif\r\n<B size=-2>Tip<BR>s</FONT>")),
                 u"Tip\r\ns"_qs);
    }

    void tipOnTheNextLineOnly() {
        const QString texte =
            u"<IMG src=\"ASTUCES.gif\">astuces.gif<B size=-2>non</FONT>\r\nrien\r\n<B size=-2>oui</FONT>"_qs;
        QCOMPARE(complements(commentee(texte)), u"oui"_qs);
        QCOMPARE(complements(debutFin(texte)), QString());
    }

    void openMethodLeaksToTheNextPage() {
        MemoireImport memoire;
        const auto lire = [&memoire](const QString &texte) {
            return methode(ExtrairePageDebutFin(capture(texte), memoire));
        };
        const QString etrangere = u"<IMG src=\"menu.gif\">Accueil\r\n"_qs;
        QCOMPARE(lire(u"<!-- debut EXPLICATION recette --><IMG src=\"p.gif\">Pelez."_qs), u"- Pelez."_qs);
        QCOMPARE(lire(etrangere + u"<!-- FIN EXPLICATION RECETTE -->"), u"- Accueil"_qs);
        QCOMPARE(lire(etrangere), QString());
    }

    void hostilePages_data() {
        QTest::addColumn<QString>("texte");
        const auto grande = [](const QString &motif) { return motif.repeated(kGrande / motif.size()); };
        const QString methodes = u"<!-- DEBUT EXPLICATION RECETTE -->\r\n"_qs;
        QTest::newRow("both layouts again and again")
            << grande(fichier("commentee.html") + fichier("debut-fin.html"));
        QTest::newRow("nested tags in a field")
            << QString(u"<!--Cuisson -->" + u"<FONT "_qs.repeated(kGrande / 40) +
                       u"<FONT size=-2>size=-2>"_qs.repeated(kGrande / 40) + QString(kGrande / 4, u'\r'));
        QTest::newRow("method of many lines") << QString(methodes + grande(u".gif\">Cuisez.<BR>\r\n"_qs));
        QTest::newRow("ingredients closed on every line") << QString(
            u"<!-- debut ingredient -->" + QString(kGrande / 2, u'x') +
            u"\r<LI>sel</LI><!-- fin ingredient --><!-- FIN INGREDIENT -->"_qs.repeated(kGrande / 128));
        QString octets(kGrande, Qt::Uninitialized);
        std::generate(octets.begin(), octets.end(),
                      [n = 1U]() mutable { return QChar(char16_t(((n = n * 48271U) >> 16) & 0xFF)); });
        QTest::newRow("binary bytes") << octets;
    }

    void hostilePages() {
        QFETCH(const QString, texte);
        QElapsedTimer duree;
        duree.start();
        commentee(texte);
        debutFin(texte);
        // Some seconds with the sanitizers; a step that looks at the whole page for each line takes hours.
        QVERIFY2(duree.elapsed() < 60'000, qPrintable(QString::number(duree.elapsed())));
    }
};

QTEST_GUILESS_MAIN(TestPages)
#include "TestPages.moc"
