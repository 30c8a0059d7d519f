#include "Described.h"

#include "platform/richtext/RichText.h"

#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QTest>
#include <QTextCursor>
#include <QTextDocument>

using namespace platform::richtext;

namespace {

QString described(const QString &stored) {
    QTextDocument document;
    load(document, stored);
    return described(document);
}

QString rtf(const char *body) {
    return QStringLiteral("{\\rtf1\\ansi\\ansicpg1252\\deff0") + QString::fromUtf8(body);
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
    void tellsRtfFromPlainText_data();
    void tellsRtfFromPlainText();
    void reads_data();
    void reads();
    void writesAndReadsBack_data();
    void writesAndReadsBack();
    void writesWhatOtherProgramsRead();
    void keepsTheDocumentsOwnColourAndFont();
    void replacesWhatWasThere();
    void readsEveryBeginningOfAText();
    void readsRandomText();
    void takesTimeInProportion_data();
    void takesTimeInProportion();
};

void RichTextTest::tellsRtfFromPlainText_data() {
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QString>("text");
    QTest::addRow("blanks before") << QStringLiteral(" \r\n{\\rtf1 a}") << QStringLiteral("a");
    QTest::addRow("brace that opens no rich text")
        << QStringLiteral("{a} \\b b") << QStringLiteral("{a} \\b b");
    QTest::addRow("line ends of plain text")
        << QStringLiteral("a\nb\rc\r\nd\n") << QStringLiteral("a|b|c|d|");
    QTest::addRow("NUL after plain text") << QStringLiteral("a").append(QChar(u'\0')) << QStringLiteral("a");
    QTest::addRow("nothing") << QString() << QString();
}

void RichTextTest::tellsRtfFromPlainText() {
    QFETCH(const QString, stored);
    QFETCH(const QString, text);
    QCOMPARE(described(stored), text);
    QCOMPARE(onOneLine(plainText(stored)), text);
}

void RichTextTest::reads_data() {
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *fault, const char *body, const char *expected) {
        QTest::addRow("%s", fault) << rtf(body) << QString::fromUtf8(expected);
    };
    row("ligature and euro taken for control characters", "\\'80\\'9c\\'8c\\'85}", "€œŒ…");
    row("hexadecimal in capitals", "\\'C9\\'E9}", "Éé");
    row("damaged hexadecimal swallows text", "a\\'zzb\\'}", "azzb");
    row("code page of the file ignored", "\\ansicpg1251 \\'e4}", "д");
    row("character set of the font ignored",
        "{\\fonttbl{\\f0 A;}{\\f1\\fcharset161 B;}}\\f1\\'e4\\plain\\'e4}", "[B:δ]ä");
    row("character set lost at inner group", "{\\fonttbl{\\f0\\fcharset238{\\*\\panose 02}A;}}\\'b3}", "ł");
    row("Mac file read as Windows", "\\mac\\'8e}", "é");
    row("raw character beyond ASCII", "é€ł}", "é€ł");
    row("stand-in shown beside its character", "\\u8217?a\\uc2\\u8217\\'3f?b{\\uc0\\u8217}c}", "’a’b’c");
    row("blank after number taken for stand-in", "\\u233 ?\\u233 e}", "éé");
    row("paragraph taken for stand-in", "\\u233\\par b}", "é|b");
    row("negative number and surrogates", "\\u-10179?\\u-8704?\\u-3913?\\u128512?}", "😀\uf0b7😀");
    row("number missing or out of range", "\\u a\\u99999999999?b}", "a\ufffdb");
    row("escaped characters", "\\\\\\{\\}\\~\\-\\_}", "\\{}\u00a0\u00ad\u2011");
    row("named characters", "\\emdash\\endash\\lquote\\rquote\\ldblquote\\rdblquote\\bullet\\tab x\\line y}",
        "—–‘’“”•\tx/y");
    row("line ends of the source taken for text", "a\r\nb\nc\rd}", "abcd");
    row("backslash before a line end", "a\\\nb\\\r\nc}", "a|b|c");
    row("empty paragraph gained at the end", "a\\par b\\par }", "a|b");
    row("empty paragraph lost at the end", "a\\par\\par}", "a|");
    row("last paragraph without its end lost", "a\\par b}", "a|b");
    row("paragraph format of the next one", "\\qc a\\par\\pard\\qr b\\par\\pard c\\par}",
        "<centre>a|<right>b|c");
    row("lengths", "\\li300\\ri150\\fi-150\\sb30\\sa45\\qj a}", "<justified li300 ri150 fi-150 sb30 sa45>a");
    row("text out of the box on its left", "\\li-500\\fi-100 a\\par\\li100\\fi-200 b}", "a|<li100 fi-100>b");
    row("tab stops", "\\tx300\\tqr\\tx600 a}", "<tab300 rtab600>a");
    row("bold that does not end", "\\b a\\b0 b{\\i\\ul c}d\\strike e}",
        "[bold:a]b[italic underline:c]d[strike:e][strike]");
    row("underline that does not end", "\\ul a\\ulnone b\\ul\\ul0 c}", "[underline:a]bc");
    row("formats outlive plain", "{\\colortbl;\\red9;}\\b\\fs30\\cf1 a\\plain b}", "[15pt #090000 bold:a]b");
    row("automatic colour made black", "{\\colortbl;\\red255\\green0\\blue16;}\\cf1 a\\cf0 b\\cf7 c}",
        "[#ff0010:a]bc");
    row("background", "{\\colortbl;\\red255\\green0\\blue16;}\\highlight1 a\\highlight0 b}",
        "[on #ff0010:a]b");
    row("default font set without need", "{\\fonttbl{\\f0 A;}}a\\f0 b\\plain c}", "a[A:b]c");
    row("font table without groups", "{\\fonttbl\\f0\\fnil A B;\\f1 C;}\\f1 c\\f0 a}", "[C:c][A B:a][A B]");
    row("bullet shown as text",
        "{\\pntext\\f1\\'B7\\tab}{\\*\\pn\\pnlvlblt\\pnf1{\\pntxtb\\'B7}}\\fi-200\\li200 a\\par"
        "{\\pntext\\f1\\'B7\\tab}b\\par\\pard c\\par}",
        "<bullet li200>a|<bullet li200>b|c");
    row("bullet outside of the box", "{\\*\\pn\\pnlvlblt}a}", "<bullet li180>a");
    row("marker before the paragraph's reset", "{\\listtext 1.\\tab}\\pard\\ls1\\li400 a\\par\\pard b}",
        "<number li400>a|b");
    row("letter told from a bullet", "{\\listtext a)}\\li300 a\\par{\\listtext o}b\\par}",
        "<letter li300>a|<bullet li300>b");
    row("skipped groups leave text",
        "{\\stylesheet{\\s0 N;}}{\\info{\\title T}}{\\*\\x{y}z}{\\pict 0aff{\\b c}}"
        "{\\header h}{\\object{\\result r}}a}",
        "a");
    row("unknown words and symbols", "\\foo12 a\\bar-3b\\:\\|c}", "abc");
    row("result of a field lost", "{\\field{\\*\\fldinst HYPERLINK}{\\fldrslt a}}}", "a");
    row("braces in binary data", "{\\pict\\bin3 }}}0}a}", "a");
    row("huge binary length swallows the text", "a\\bin99999999 b}", "ab");
    row("whole file taken for a skipped group", "\\pict a}", "a");
    row("closing brace lost", "a{\\b b", "a[bold:b][bold]");
    row("text before a cut unknown group lost", "a {\\*\\x b", "a ");
    row("text before a cut picture lost", "a\\par b {\\pict 0102", "a|b ");
    row("text before cut binary data lost", "a {\\pict{\\bin9 abc", "a ");
    row("text before a cut table lost", "a{\\fonttbl{\\f0 A", "a");
    row("text before a cut marker lost", "a\\par b{\\pntext{\\b 1", "a|<number li180>b");
    row("formats of the text before a cut group lost", "{\\qc\\b a{\\i\\pict{\\ul 0",
        "<centre>[bold:a][bold]");
    row("text after the end shown", "a}\r\nb", "a");
    row("surplus closing braces", "a}}}}", "a");
    row("backslash at the end", "a\\", "a");
    row("characters that mark frames and objects", "a\\u-560?\\u-559?\\u-4?\\u7?b}", "ab");
    QTest::addRow("NUL after the end") << rtf("a}").append(QChar(u'\0')) << QStringLiteral("a");
    QTest::addRow("NUL within") << rtf("a").append(QChar(u'\0')) + QStringLiteral("b}")
                                << QStringLiteral("ab");
}

void RichTextTest::reads() {
    QFETCH(const QString, source);
    QFETCH(const QString, expected);
    QCOMPARE(described(source), expected);
    QTextDocument document;
    load(document, source);
    QCOMPARE(plainText(source), document.toPlainText());
}

void RichTextTest::writesAndReadsBack_data() {
    QTest::addColumn<QString>("html");
    const auto row = [](const char *fault, const char *html) {
        QTest::addRow("%s", fault) << QString::fromUtf8(html);
    };
    row("empty document", "");
    row("empty paragraphs at the end", "<p>a</p><p></p><p></p>");
    row("formats nested and ended", "<b>a<i>b</i></b><u>c</u><s>d</s> e");
    row("font and size taken back",
        "<span style='font-family:Un; font-size:11pt'>a</span>b<span style='font-family:"
        "\"Dé ux;\"'>c</span>");
    row("odd font size", "<span style='font-size:9.5pt'>a</span>");
    row("colours mixed up", "<span style='color:#102030'>a</span><span style='color:#000000; "
                            "background-color:#405060'>b</span>c");
    row("digits and blanks after a word", "<b> 12</b>3<i>-4</i>5 <u> </u>");
    row("syntax characters", "\\ { } \\par &lt;B&gt; ;");
    row("characters beyond the code page", "é€œ\u0081 ł д 😀 &nbsp; &shy; \u2011 \u2028 x<br/>y");
    row("alignment and margins",
        "<p align='center'>a</p><p align='right' style='margin-left:20px; margin-right:7px; "
        "text-indent:-10px; margin-top:3px; margin-bottom:4px'>b</p><p>c</p>");
    row("lists", "<p>x</p><ul><li>a</li><li><b>b</b></li></ul><ol><li>c</li></ol><ol "
                 "type='I'><li>d</li></ol><p>y</p>");
}

void RichTextTest::writesAndReadsBack() {
    QFETCH(const QString, html);
    QTextDocument original;
    original.setHtml(html);
    const QString written = toRtf(original);
    QTextDocument first;
    load(first, written);
    QCOMPARE(first.toPlainText(), original.toPlainText());
    QCOMPARE(first.blockCount(), original.blockCount());
    QCOMPARE(toRtf(first), written);

    QTextDocument second;
    load(second, toRtf(first));
    QCOMPARE(described(second), described(first));
    QCOMPARE(described(toRtf(second)), described(first));
}

void RichTextTest::writesWhatOtherProgramsRead() {
    QTextDocument document;
    load(document,
         rtf("{\\fonttbl{\\f0 Un;}}{\\colortbl;\\red255;}\\f0\\fs20\\cf1 <B>é</B> ł\\par\\plain\\b b\\par}"));
    QCOMPARE(toRtf(document),
             QStringLiteral("{\\rtf1\\ansi\\ansicpg1252\\deff0{\\fonttbl{\\f0\\fnil\\fcharset0 Verdana;}"
                            "{\\f1\\fnil\\fcharset0 Un;}}\r\n{\\colortbl ;\\red255\\green0\\blue0;}\r\n"
                            "\\viewkind4\\uc1\\pard\\f1\\fs20\\cf1 <B>\\'e9</B> \\u322?\\par\r\n"
                            "\\plain\\b b\\par\r\n}\r\n"));
}

void RichTextTest::keepsTheDocumentsOwnColourAndFont() {
    QTextDocument document;
    QFont font;
    font.setPointSize(23);
    document.setDefaultFont(font);
    load(document, rtf("{\\colortbl;}\\cf0\\b a\\par b}"));
    QCOMPARE(document.defaultFont().pointSize(), 23);
    QVERIFY(!toRtf(document).contains(u"\\cf"));
    QVERIFY(!toRtf(document).contains(u"\\fs"));
}

void RichTextTest::replacesWhatWasThere() {
    QTextDocument document;
    load(document, rtf("{\\pntext\\'B7}\\b a\\par b}"));
    QTextCursor(&document).insertText(QStringLiteral("typed"));
    load(document, QStringLiteral("c"));
    QCOMPARE(described(document), QStringLiteral("c"));
    QVERIFY(document.isUndoRedoEnabled());
    QVERIFY(!document.isUndoAvailable());
    QVERIFY(!document.isModified());
}

void RichTextTest::readsEveryBeginningOfAText() {
    const QString whole = rtf(kRichSample);
    for (qsizetype length = 0; length <= whole.size(); ++length) {
        QTextDocument document;
        load(document, whole.left(length));
        const QString written = toRtf(document);
        QTextDocument again;
        load(again, written);
        QCOMPARE(toRtf(again), written);
        QCOMPARE(described(again), described(document));
    }
}

void RichTextTest::readsRandomText() {
    const QStringList pieces{
        QStringLiteral("{"),       QStringLiteral("}"),         QStringLiteral("\\"),
        QStringLiteral("\\b"),     QStringLiteral("\\par "),    QStringLiteral("\\'"),
        QStringLiteral("e9"),      QStringLiteral("\\u"),       QStringLiteral("-70000 "),
        QStringLiteral("\\bin"),   QStringLiteral("9"),         QStringLiteral("\\*"),
        QStringLiteral("\\pn"),    QStringLiteral("\\fonttbl"), QStringLiteral("\\pntext"),
        QStringLiteral("\\fs"),    QStringLiteral("\\li"),      QStringLiteral("\\tx"),
        QStringLiteral("\\uc"),    QStringLiteral(";"),         QStringLiteral("\\colortbl"),
        QStringLiteral("é 😀\r\n"), QStringLiteral("\\f1"),      QStringLiteral("\\plain")};
    QRandomGenerator random(20);
    for (int round = 0; round < 400; ++round) {
        QString source = rtf("");
        for (int i = 0; i < 60; ++i) {
            source += random.bounded(4) == 0 ? QString(QChar(char16_t(random.bounded(0x10000))))
                                             : pieces[random.bounded(int(pieces.size()))];
        }
        QTextDocument document;
        load(document, source);
        QCOMPARE(plainText(source), document.toPlainText());
        const QString written = toRtf(document);
        QTextDocument again;
        load(again, written);
        QCOMPARE(toRtf(again), written);
    }
}

void RichTextTest::takesTimeInProportion_data() {
    QTest::addColumn<QString>("piece");
    QTest::addColumn<int>("times");
    QTest::addRow("deep nesting recurses") << QStringLiteral("{") << 1000000;
    QTest::addRow("deep nesting copies") << QStringLiteral("{\\tx1\\tx2\\tx3") << 200000;
    QTest::addRow("skipped groups recurse") << QStringLiteral("{\\*\\x{\\pict") << 200000;
    QTest::addRow("control words") << QStringLiteral("\\pard") << 500000;
    QTest::addRow("paragraphs") << QStringLiteral("\\par") << 30000;
    QTest::addRow("list items") << QStringLiteral("{\\pntext\\'b7}x\\par") << 20000;
    QTest::addRow("fonts") << QStringLiteral("{\\fonttbl\\f%1 N%1;}\\f%1 x") << 20000;
    QTest::addRow("tab stops") << QStringLiteral("\\pard\\tx%1 x\\par") << 20000;
}

void RichTextTest::takesTimeInProportion() {
    QFETCH(const QString, piece);
    QFETCH(const int, times);
    QString source = rtf("");
    for (int i = 1; i <= times; ++i) {
        source +=
            piece.contains(u'%') ? QString(piece).replace(QStringLiteral("%1"), QString::number(i)) : piece;
    }
    // Skipped groups swallow what stands in them.
    source += QStringLiteral("}").repeated(piece.contains(u'*') ? 2 * times : 0) + QStringLiteral(" end}");
    QTextDocument document;
    QElapsedTimer timer;
    timer.start();
    load(document, source);
    QVERIFY(document.toPlainText().endsWith(u"end"));
    QVERIFY(!toRtf(document).isEmpty());
    // Hundreds of times what it takes; growth by the square would need minutes.
    QVERIFY2(timer.elapsed() < 20000, qPrintable(QString::number(timer.elapsed())));
}

QTEST_MAIN(RichTextTest)
#include "RichTextTest.moc"
