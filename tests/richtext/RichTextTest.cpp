#include "Described.h"

#include "platform/richtext/RichText.h"

#include <QElapsedTimer>
#include <QTest>
#include <QTextDocument>

#include <array>

using namespace platform::richtext;
using namespace Qt::StringLiterals;

namespace {

QString described(const QString &stored) {
    QTextDocument document;
    load(document, stored);
    return described(document);
}

QString rtf(const char *body) {
    return u"{\\rtf1\\ansi\\ansicpg1252\\deff0"_s + QString::fromUtf8(body);
}

/// Every rule at once; cut anywhere it must still be read.
const char *const kRichSample =
    "{\\fonttbl{\\f0\\fnil\\fcharset0 Un;}{\\f1\\fcharset204{\\*\\panose 02}Deux;}}{\\colortbl "
    ";\\red1\\green2\\blue3;}"
    "{\\*\\generator Nul;}{\\stylesheet{ Normal;}}\\uc1\\pard\\qc\\cf1\\f0\\fs20 \\b "
    "A\\b0\\'e9\\u8217?\\line B\\par "
    "\\pard{\\pntext\\f1\\'B7\\tab}{\\*\\pn\\pnlvlblt\\pnf1{\\pntxtb\\'B7}}\\fi-200\\li400\\tx900 C\\par "
    "{\\pict\\bin4 }{\\}}\\pard\\plain\\highlight1 \\u-10179?\\u-8704?D\\par}";

} // namespace

class RichTextTest : public QObject {
    Q_OBJECT

private Q_SLOTS:

    void tellsRtfFromPlainText() {
        const auto texts = std::to_array<std::pair<QString, QString>>({{u" \r\n{\\rtf1 a}"_s, u"a"_s},
                                                                       {u"{a} \\b b"_s, u"{a} \\b b"_s},
                                                                       {u"a\nb\rc\r\nd\n"_s, u"a|b|c|d|"_s},
                                                                       {u"a"_s + QChar(u'\0'), u"a"_s},
                                                                       {QString(), QString()}});
        for (const auto &[stored, text] : texts) {
            QCOMPARE(described(stored), text);
            QCOMPARE(onOneLine(plainText(stored)), text);
        }
    }

    void reads_data() {
        QTest::addColumn<QString>("source");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char *fault, const char *body, const char *expected) {
            QTest::addRow("%s", fault) << rtf(body) << QString::fromUtf8(expected);
        };
        row("ligature and euro taken for control characters", "\\'80\\'9c\\'8c\\'C9\\'E9}", "€œŒÉé");
        row("damaged hexadecimal swallows text", "a\\'zzb\\'}", "azzb");
        row("character set of the font ignored",
            "{\\fonttbl{\\f0 A;}{\\f1\\fcharset161 B;}}\\f1\\'e4\\plain\\'e4}", "[B:δ]ä");
        row("character set lost at inner group", "{\\fonttbl{\\f0\\fcharset238{\\*\\panose 02}A;}}\\'b3}",
            "ł");
        row("Mac file read as Windows", "\\mac\\'8e}", "é");
        row("stand-in shown beside its character", "\\u8217?a\\uc2\\u8217\\'3f?b{\\uc0\\u8217}c}", "’a’b’c");
        row("negative number and surrogates", "\\u-10179?\\u-8704?\\u-3913?\\u128512?}", "😀\uf0b7😀");
        row("number missing or out of range", "\\u a\\u99999999999?b}", "a\ufffdb");
        row("named characters",
            "\\emdash\\endash\\lquote\\rquote\\ldblquote\\rdblquote\\bullet\\tab x\\line y}", "—–‘’“”•\tx/y");
        row("empty paragraph gained at the end", "a\\par b\\par }", "a|b");
        row("empty paragraph lost at the end", "a\\par\\par}", "a|");
        row("last paragraph without its end lost", "a\\par b}", "a|b");
        row("text out of the box on its left", "\\li-500\\fi-100 a\\par\\li100\\fi-200 b}",
            "a|<li100 fi-100>b");
        row("tab stops", "\\tx300\\tqr\\tx600 a}", "<tab300 rtab600>a");
        row("bold that does not end", "\\b a\\b0 b{\\i\\ul c}d\\strike e}",
            "[bold:a]b[italic underline:c]d[strike:e][strike]");
        row("formats outlive plain", "{\\colortbl;\\red9;}\\b\\fs30\\cf1 a\\plain b}",
            "[15pt #090000 bold:a]b");
        row("automatic colour made black", "{\\colortbl;\\red255\\green0\\blue16;}\\cf1 a\\cf0 b\\cf7 c}",
            "[#ff0010:a]bc");
        row("bullet shown as text",
            "{\\pntext\\f1\\'B7\\tab}{\\*\\pn\\pnlvlblt\\pnf1{\\pntxtb\\'B7}}\\fi-200\\li200 a\\par"
            "{\\pntext\\f1\\'B7\\tab}b\\par\\pard c\\par}",
            "<bullet li200>a|<bullet li200>b|c");
        row("marker before the paragraph's reset", "{\\listtext 1.\\tab}\\pard\\ls1\\li400 a\\par\\pard b}",
            "<number li400>a|b");
        row("skipped groups leave text",
            "{\\stylesheet{\\s0 N;}}{\\info{\\title T}}{\\*\\x{y}z}{\\pict 0aff{\\b c}}"
            "{\\header h}{\\object{\\result r}}a}",
            "a");
        row("result of a field lost", "{\\field{\\*\\fldinst HYPERLINK}{\\fldrslt a}}}", "a");
        row("braces in binary data", "{\\pict\\bin3 }}}0}a}", "a");
        row("closing brace lost", "a{\\b b", "a[bold:b][bold]");
        row("text before a cut picture lost", "a\\par b {\\pict 0102", "a|b ");
        row("text before a cut marker lost", "a\\par b{\\pntext{\\b 1", "a|<number li180>b");
        row("formats of the text before a cut group lost", "{\\qc\\b a{\\i\\pict{\\ul 0",
            "<centre>[bold:a][bold]");
        row("surplus closing braces and text after the end", "a}}}\r\nb", "a");
        row("characters that mark frames and objects", "a\\u-560?\\u-559?\\u-4?\\u7?b}", "ab");
        QTest::addRow("NUL after the end") << rtf("a}").append(QChar(u'\0')) << u"a"_s;
        QTest::addRow("NUL within") << rtf("a").append(QChar(u'\0')) + u"b}"_s << u"ab"_s;
    }

    void reads() {
        QFETCH(const QString, source);
        QFETCH(const QString, expected);
        QCOMPARE(described(source), expected);
        QTextDocument document;
        load(document, source);
        QCOMPARE(plainText(source), document.toPlainText());
    }

    void writesAndReadsBack() {
        const auto sources = std::to_array<const char *>({
            "<p>a</p><p></p><p></p>",
            "<span style='font-family:Un; font-size:9.5pt'>a</span>b"
            "<span style='font-family:\"Dé ux;\"'>c</span>",
            "<span style='color:#102030'>a</span>"
            "<span style='color:#000000; background-color:#405060'>b</span>c",
            "<b> 12</b>3<i>-4</i>5 <u> </u>", // digits and blanks after a word of a format
            "\\ { } \\par &lt;B&gt; ;",
            "é€œ\u0081 ł д 😀 &nbsp; &shy; \u2011 \u2028 x<br/>y",
            "<p align='center'>a</p><p align='right' style='margin-left:20px; margin-right:7px; "
            "text-indent:-10px; margin-top:3px; margin-bottom:4px'>b</p><p>c</p>",
            "<p>x</p><ul><li>a</li><li><b>b</b></li></ul><ol><li>c</li></ol><ol "
            "type='I'><li>d</li></ol><p>y</p>",
        });
        for (const char *const html : sources) {
            QTextDocument original;
            original.setHtml(QString::fromUtf8(html));
            const QString written = toRtf(original);
            QTextDocument read;
            load(read, written);
            QCOMPARE(read.toPlainText(), original.toPlainText());
            QCOMPARE(toRtf(read), written);
            QCOMPARE(described(toRtf(read)), described(read));
        }
    }

    void writesWhatOtherProgramsRead() {
        QTextDocument document;
        load(document, rtf("{\\fonttbl{\\f0 Un;}}{\\colortbl;\\red255;}\\f0\\fs20\\cf1 <B>é</B> "
                           "ł\\par\\plain\\b b\\par}"));
        QCOMPARE(toRtf(document),
                 u"{\\rtf1\\ansi\\ansicpg1252\\deff0{\\fonttbl{\\f0\\fnil\\fcharset0 Verdana;}"
                 "{\\f1\\fnil\\fcharset0 Un;}}\r\n{\\colortbl ;\\red255\\green0\\blue0;}\r\n"
                 "\\viewkind4\\uc1\\pard\\f1\\fs20\\cf1 <B>\\'e9</B> \\u322?\\par\r\n"
                 "\\plain\\b b\\par\r\n}\r\n"_s);
    }

    void readsEveryBeginningOfAText() {
        const QString whole = rtf(kRichSample);
        for (qsizetype length = 0; length <= whole.size(); ++length) {
            QTextDocument document;
            load(document, whole.left(length));
            QCOMPARE(plainText(whole.left(length)), document.toPlainText());
            const QString written = toRtf(document);
            QTextDocument again;
            load(again, written);
            QCOMPARE(toRtf(again), written);
            QCOMPARE(described(again), described(document));
        }
    }

    void takesTimeInProportion() {
        // How many times which piece; # stands for its number.
        const auto pieces = std::to_array<std::pair<int, QString>>({
            {1000000, u"{"_s},
            {200000, u"{\\*\\x{\\pict"_s},
            {30000, u"\\par"_s},
            {20000, u"{\\pntext\\'b7}x\\par"_s},
            {20000, u"{\\fonttbl\\f# N#;}\\f# x"_s},
            {20000, u"\\pard\\tx# x\\par"_s},
        });
        for (const auto &[times, piece] : pieces) {
            QString source = rtf("");
            for (int i = 1; i <= times; ++i) {
                source += QString(piece).replace(u'#', QString::number(i));
            }
            // Skipped groups swallow what stands in them.
            source += u"}"_s.repeated(piece.contains(u'*') ? 2 * times : 0) + u" end}"_s;
            QTextDocument document;
            QElapsedTimer timer;
            timer.start();
            load(document, source);
            QVERIFY(document.toPlainText().endsWith(u"end"));
            QVERIFY(!toRtf(document).isEmpty());
            // Hundreds of times what it takes; growth by the square would need minutes.
            QVERIFY2(timer.elapsed() < 20000, qPrintable(piece));
        }
    }
};

QTEST_MAIN(RichTextTest)
#include "RichTextTest.moc"
