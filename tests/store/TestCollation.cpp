#include "store/CollationFrancaise.h"

#include <QTest>

#include <vector>

using namespace store;

namespace {

std::string key(std::string_view text) {
    QByteArray bytes;
    store::AjouterCleDeTri(text, bytes);
    return bytes.toStdString();
}

} // namespace

class TestCollation : public QObject {
    Q_OBJECT

private Q_SLOTS:

    /// Each row is a list of texts in rising order, equal ones joined by "=".
    void order_data() {
        QTest::addColumn<QString>("texts");
        QTest::newRow("accents beside their letter") << u"e<é<f"_qs;
        QTest::newRow("accents decide after all letters") << u"pate<pâte<pâté<pates"_qs;
        QTest::newRow("case of every French letter") << u"àâçéèêëîïôùûüÿæœ=ÀÂÇÉÈÊËÎÏÔÙÛÜŸÆŒ"_qs;
        QTest::newRow("case beyond French") << u"ñóščřžőłß=ÑÓŠČŘŽŐŁß"_qs;
        QTest::newRow("ligatures as two letters, but not equal") << u"odeur<oeuf<œuf<of"_qs;
        QTest::newRow("ae") << u"ad<ae<æ<af"_qs;
        QTest::newRow("trailing blanks count") << u"sel<sel <sel fin"_qs;
        QTest::newRow("prefix first, empty foremost") << u"<s<se"_qs;
        QTest::newRow("signs by code point") << u"!<-<0<10<2<a<×<€<🍓"_qs;
        QTest::newRow("control characters") << u"a<a\u0001<a\u0001b<a b<ab"_qs;
    }

    void order() {
        QFETCH(const QString, texts);
        std::vector<std::pair<int, std::string>> ranked;
        int rank = 0;
        for (const QString &step : texts.split(u'<')) {
            for (const QString &text : step.split(u'=')) {
                ranked.emplace_back(rank, text.toStdString());
            }
            ++rank;
        }
        for (const auto &[leftRank, left] : ranked) {
            for (const auto &[rightRank, right] : ranked) {
                check(left, right, leftRank - rightRank);
            }
        }
    }

    void bytesThatAreNoUtf8HaveTheirPlaceToo() {
        const std::vector<std::string> rising{"a",
                                              std::string("a\0", 2),
                                              std::string("a\0b", 3),
                                              "ab",
                                              "\xF4\x8F\xBF\xBF",
                                              "\x80",
                                              "\xC3",
                                              "\xC3\x28",
                                              "\xE2\x82",
                                              "\xFF"};
        for (size_t i = 0; i < rising.size(); ++i) {
            for (size_t j = 0; j < rising.size(); ++j) {
                check(rising[i], rising[j], int(i) - int(j));
            }
        }
    }

private:
    static int sign(int number) { return (number > 0) - (number < 0); }

    static void check(const std::string &left, const std::string &right, int expected) {
        const std::string pair = left + " | " + right;
        QVERIFY2(sign(ComparerFrancais(left, right)) == sign(expected), pair.c_str());
        QVERIFY2(sign(key(left).compare(key(right))) == sign(expected), pair.c_str());
    }
};

QTEST_APPLESS_MAIN(TestCollation)
#include "TestCollation.moc"
