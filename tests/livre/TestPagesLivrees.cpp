// The pages that travel with the program: the help, and the demonstration site of the import.
#include "store/Configuration.h"
#include "webimport/Categories.h"
#include "webimport/FichierTemporaire.h"

#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTest>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {

const QString kFolder = QStringLiteral(PAGES_FOLDER);

QString read(const QString &page) {
    QFile file(page);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
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
    void everyAddressLeadsSomewhere_data();
    void everyAddressLeadsSomewhere();
    void theLinksOfTheOpeningScreenLeadToPages();
    void theIndexOfTheSiteNamesKnownGroups();
    void theSiteFitsTheTemporaryFile();
};

void TestPagesLivrees::everyAddressLeadsSomewhere_data() {
    QTest::addColumn<QString>("page");
    for (const QString &folder : {u"/aide"_s, u"/facile"_s}) {
        QDirIterator pages(kFolder + folder, {u"*.htm"_s});
        while (pages.hasNext()) {
            const QString page = pages.next();
            QTest::newRow(qPrintable(page.section(u'/', -2))) << page;
        }
    }
}

void TestPagesLivrees::everyAddressLeadsSomewhere() {
    QFETCH(const QString, page);
    const QStringList addresses = addressesOf(read(page));
    QVERIFY(!addresses.isEmpty());
    for (const QString &address : addresses) {
        QVERIFY2(leadsSomewhere(QUrl::fromLocalFile(page).resolved(QUrl(address))), qPrintable(address));
    }
}

void TestPagesLivrees::theLinksOfTheOpeningScreenLeadToPages() {
    QStringList pages{store::AuteurSite.toString(), u"aide/index.htm"_s, u"facile/facile.htm"_s};
    for (const store::Lien &lien : store::kLiens) {
        pages << lien.adresse.toString();
    }
    for (const QString &page : pages) {
        QVERIFY2(page.contains(u"://"_s) || QFileInfo(kFolder + u'/' + page).isFile(), qPrintable(page));
    }
}

// The reader ends the program at an address whose group is no number.
void TestPagesLivrees::theIndexOfTheSiteNamesKnownGroups() {
    int recipes = 0;
    for (const QString &address : addressesOf(read(kFolder + u"/facile/index.htm"_s))) {
        if (address.contains(u"groupid"_s)) {
            QVERIFY2(!webimport::CategorieDeLAdresse(address).isEmpty(), qPrintable(address));
            ++recipes;
        }
    }
    QVERIFY(recipes >= 8);
}

// A page is captured in code page 1252; what that lacks would reach the book as a question mark.
void TestPagesLivrees::theSiteFitsTheTemporaryFile() {
    QDirIterator pages(kFolder + u"/facile"_s, {u"*.htm"_s});
    while (pages.hasNext()) {
        const QString page = pages.next();
        const QString text = read(page);
        constexpr int kTypeAndLength = 4;
        QVERIFY2(webimport::TexteDuFichier(webimport::EnregistrementDuTexte(text)).mid(kTypeAndLength) ==
                     text,
                 qPrintable(page));
    }
}

QTEST_GUILESS_MAIN(TestPagesLivrees)
#include "TestPagesLivrees.moc"
