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
    void order() {
        for (const QString &texts : {
                 u"e<é<f"_qs,
                 u"pate<pâte<pâté<pates"_qs, // accents decide after all letters
                 u"àâçéèêëîïôùûüÿæœ=ÀÂÇÉÈÊËÎÏÔÙÛÜŸÆŒ"_qs,
                 u"ñóščřžőłß=ÑÓŠČŘŽŐŁß"_qs,
                 u"odeur<oeuf<œuf<of"_qs,
                 u"ad<ae<æ<af"_qs,
                 u"sel<sel <sel fin"_qs,
                 u"<s<se"_qs,
                 u"!<-<0<10<2<a<×<€<🍓"_qs,
                 u"a<a\u0001<a\u0001b<a b<ab"_qs,
             }) {
            const QStringList ranks = texts.split(u'<');
            for (int i = 0; i < ranks.size(); ++i) {
                for (int j = 0; j < ranks.size(); ++j) {
                    for (const QString &left : ranks[i].split(u'=')) {
                        check(left.toStdString(), ranks[j].section(u'=', -1).toStdString(), i - j);
                    }
                }
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
