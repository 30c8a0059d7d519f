// The pages that travel with the program: the help, and the demonstration site of the import.
#include "Files.h"

#include "store/Configuration.h"
#include "webimport/Categories.h"
#include "webimport/FichierTemporaire.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSet>
#include <QTest>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {

const QString kFolder = QStringLiteral(PAGES_FOLDER);

QString read(const QString &page) {
    return QString::fromUtf8(contentOf(page));
}

QStringList pages(const QString &folder) {
    const QDir place(kFolder + u'/' + folder);
    QStringList paths;
    for (const QString &name : place.entryList({u"*.htm"_s})) {
        paths.append(place.filePath(name));
    }
    return paths;
}

/// What the page shows or leads to, as written.
QStringList addressesOf(const QString &text) {
    static const QRegularExpression attribute(u"\\b(?:href|src)=\"([^\"]*)\""_s,
                                              QRegularExpression::CaseInsensitiveOption);
    QStringList addresses;
    for (const QRegularExpressionMatch &match : attribute.globalMatch(text)) {
        addresses << match.captured(1);
    }
    return addresses;
}

bool leadsSomewhere(const QUrl &address) {
    const QString file = address.toLocalFile();
    const QString place = address.fragment();
    return QFileInfo(file).isFile() && (place.isEmpty() || read(file).contains(u" id=\""_s + place + u'"'));
}

} // namespace

class TestPagesLivrees : public QObject {
    Q_OBJECT

private Q_SLOTS:

    void everyAddressLeadsSomewhere() {
        for (const store::Lien &link : store::kLiens) {
            const QString address = link.adresse.toString();
            QVERIFY2(address.contains(u"://"_s) || QFileInfo(kFolder + u'/' + address).isFile(),
                     qPrintable(address));
        }
        for (const QString &page : pages(u"aide"_s) + pages(u"facile"_s)) {
            const QStringList addresses = addressesOf(read(page));
            QVERIFY2(!addresses.isEmpty(), qPrintable(page));
            for (const QString &address : addresses) {
                QVERIFY2(leadsSomewhere(QUrl::fromLocalFile(page).resolved(QUrl(address))),
                         qPrintable(page + u' ' + address));
            }
        }
    }

    // The reader ends the program at an address whose group is no number, and without a group takes the title of some
    // recipes for their dish type.
    void eachLinkToARecipeNamesAKnownGroup() {
        static const QRegularExpression recipe(u"^(?!index|facile)[a-z-]+\\.htm"_s);
        QSet<QString> recipes;
        for (const QString &page : pages(u"facile"_s)) {
            for (const QString &address : addressesOf(read(page))) {
                if (const auto match = recipe.match(address); match.hasMatch()) {
                    QVERIFY2(!webimport::CategorieDeLAdresse(address).isEmpty(), qPrintable(address));
                    recipes += match.captured();
                }
            }
        }
        QCOMPARE(recipes.size(), pages(u"facile"_s).size() - 2);
    }
};

QTEST_GUILESS_MAIN(TestPagesLivrees)
#include "TestPagesLivrees.moc"
