#include "Described.h"

#include "platform/richtext/PastedText.h"
#include "platform/richtext/RichText.h"

#include <QColor>
#include <QElapsedTimer>
#include <QMimeData>
#include <QTest>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextDocumentFragment>

#include <cstring>

using namespace platform::richtext;
using namespace Qt::StringLiterals;

namespace {

const QColor kGround(30, 42, 68);

void pasteHtml(QTextDocument &document, const QString &html) {
    QMimeData data;
    data.setHtml(html);
    QTextCursor cursor(&document);
    cursor.movePosition(QTextCursor::End);
    paste(cursor, data, kGround);
}

QString read(const QMimeData &data) {
    QTextDocument document;
    QTextCursor cursor(&document);
    paste(cursor, data, kGround);
    return described(document);
}

const char *const kWordHtml = R"(<html xmlns:o="urn:schemas-microsoft-com:office:office"><head>
<meta http-equiv=Content-Type content="text/html; charset=utf-8"><style>
<!-- /* Style Definitions */
@font-face {font-family:Calibri;}
p.MsoNormal, li.MsoNormal {margin:0cm; font-size:11.0pt; color:black;}
span.Gras {font-weight:bold;} @page WordSection1 {size:595.3pt 841.9pt;} --></style>
<!--[if gte mso 9]><xml><w:View>Normal</w:View></xml><![endif]--></head><body lang=FR><!--StartFragment-->
<p class=MsoNormal><span class=Gras>Pâte</span><span style='color:windowtext;mso-spacerun:yes'> brisée<o:p></o:p></span></p>
<p class=MsoListParagraph style='margin-left:36.0pt;mso-list:l0 level1 lfo1'><![if !supportLists]><span
style='font-family:Symbol'><span style='mso-list:Ignore'>·<span style='font:7.0pt "Times New Roman"'>&nbsp;&nbsp;
</span></span></span><![endif]>200&nbsp;g de farine</p>
<p class=MsoListParagraph style='mso-list:l0 level2 lfo1'><span style='mso-list:Ignore'>1.<span>&nbsp;</span></span>tamisée</p>
<p class=MsoNormal><b><u><span style='color:#FFC000;background:yellow'>Cuire</span></u></b></p><!--EndFragment--></body></html>)";

} // namespace

class PasteTest : public QObject {
    Q_OBJECT

private Q_SLOTS:

    void keepsWhatTheBoxCanShow_data() {
        QTest::addColumn<QString>("html");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char *fault, const char *html, const char *expected) {
            QTest::addRow("%s", fault) << QString::fromUtf8(html) << QString::fromUtf8(expected);
        };
        row("word processor", kWordHtml,
            "[bold:Pâte] brisée|<bullet li360>200\u00a0g de farine|<number li720>tamisée|"
            "[#ffc000 bold underline:Cuire]");
        row("inline formats", "a <b>b <i>c</i></b> <u>d</u><s>e</s>",
            "a [bold:b ][bold italic:c] [underline:d]e");
        row("fonts, sizes, grounds, margins, alignment",
            "<h2 align=center style='margin-left:9px'>a</h2><p style='font:20px "
            "Un;background:#fff;text-indent:9px'>"
            "<font face=Un size=7>b</font></p>",
            "[bold:a]|b");
        row("colour that cannot be read",
            "<span style='color:#333'>a</span><font color=navy>b</font><font color='#ff0'>c</font>"
            "<span style='color:rgb(160, 250, 255)'>d</span><span style='color:rgba(0,0,0,.5)'>e</span>",
            "ab[#ffff00:c][#a0faff:d]e");
        row("paragraphs and breaks",
            "<p>a<br>b</p>\n <div><div>c<br></div></div><p></p><div><br></div>d<hr>e", "a/b|c||d|e");
        row("blanks", "  a\n\t b<b> c </b> d&nbsp; e <pre>f  g\nh</pre>", "a b[bold: c ]d\u00a0 e|f  g/h");
        row("lists", "<ol type=a><li>a<ul><li><p>b</p><p>c</p></ul><li>d</ol><ol><li>e<li><b>f</b></ol>g",
            "<letter li360>a|<bullet li720>b/c|<letter li360>d|<number li360>e|<number li360>[bold:f]|g");
        row("table",
            "<table><tr><th>a<th>b</tr><tr><td><p>c</p></td>\n<td></td><td><div>d</div></td></tr></table>e",
            "[bold:a] [bold:b]|c d|e");
        row("images, scripts and hidden text",
            "a<img src='http://x/y.png' alt=z><script>if (a</b) b</script><span style='display:none'>c</span>"
            "<svg><text>d</text></svg><title>e</title><!-- f > --><style>p{}</style>g",
            "ag");
        row("entities", "&eacute;&#x1F600;&#8217;&#146;&amp;lt;&nosuch;&#0;&#xFFFC;&#xD800; &copy a &",
            "é😀’’&lt;&nosuch;&#xD800; &copy a &");
        row("damaged source", "a<b>b</i>c</p></b>d < e <3 <u", "a[bold:bc]|d < e <3");
    }

    void keepsWhatTheBoxCanShow() {
        QFETCH(const QString, html);
        QFETCH(const QString, expected);
        QTextDocument document;
        pasteHtml(document, html);
        QCOMPARE(described(document), expected);

        QTextDocument stored;
        load(stored, toRtf(document));
        QCOMPARE(described(stored), expected);
        QCOMPARE(toRtf(stored), toRtf(document));
    }

    void readsRtfAndPlainText() {
        QMimeData rtf;
        rtf.setData(u"text/rtf"_s,
                    "{\\rtf1\\ansi{\\fonttbl{\\f0 Un;}}{\\colortbl;\\red255\\green255;\\red9;}"
                    "\\qc\\f0\\fs40\\cf2 a\\cf1\\b b\\par\\pard\\li900 {\\pict 00}\\'e9\\par}");
        QVERIFY(holdsText(rtf));
        QCOMPARE(read(rtf), u"a[#ffff00 bold:b][#ffff00 bold]|[#ffff00 bold:é][#ffff00 bold]"_s);

        QMimeData picture;
        picture.setHtml(u"<img src='x.png'>"_s);
        QCOMPARE(read(picture), QString());
        picture.setText(u"<b>l'œuf</b>\r\n\"{\\rtf1\" \U0001F373\ufffc\u00a0!"_s);
        QCOMPARE(read(picture), u"<b>l'œuf</b>|\"{\\rtf1\" \U0001F373\u00a0!"_s);
    }

    void plainTextTakesTheFormatOfTheCursor() {
        QTextDocument document;
        load(document, u"{\\rtf1\\b ab}"_s);
        QMimeData data;
        data.setText(u"1\n2"_s);
        QTextCursor cursor(&document);
        cursor.setPosition(1);
        paste(cursor, data, kGround);
        QCOMPARE(described(document), u"[bold:a1][bold]|[bold:2b][bold]"_s);
    }

    void goesOnWithTheParagraphAndIsOneStepOfUndo() {
        QTextDocument document;
        load(document, u"un deux trois"_s);
        QMimeData data;
        data.setHtml(u"<p><b>2</b></p><ul><li>x</ul>"_s);
        QTextCursor cursor(&document);
        cursor.setPosition(3);
        cursor.setPosition(7, QTextCursor::KeepAnchor);
        paste(cursor, data, kGround);
        QCOMPARE(described(document), u"un [bold:2]|<bullet li360>x trois"_s);
        document.undo();
        QCOMPARE(described(document), u"un deux trois"_s);
        QVERIFY(!document.isUndoAvailable());
    }

    void whatABoxCopiesStaysAsItIs() {
        const QString text = u"{\\rtf1\\ansi{\\colortbl;\\red160\\green250\\blue255;}\\cf1 a  "
                             "{\\b b}\\line \\i c\\i0\\par\\par "
                             "{\\*\\pn\\pnlvlbody\\pndec}\\li300 d\\par\\li700 "
                             "\\u-10179?\\u-8704?\\par\\pard\\ul e'\"\\ulnone "
                             "f\\par}"_s;
        QTextDocument original;
        load(original, text);
        QMimeData data;
        data.setHtml(QTextDocumentFragment(&original).toHtml());
        QTextDocument copy;
        QTextCursor cursor(&copy);
        paste(cursor, data, kGround);
        const QString marks = u"[#a0faff]"_s;
        QCOMPARE(described(copy).remove(marks), described(original).remove(marks));
    }

    void takesTimeInProportion() {
        for (const char *piece :
             {"<p style='color:#333;margin:0'>Mettre le <b>beurre</b>.</p>\n", "<ul><li>un<li>deux</ul>",
              "<tr><td>un</td><td>deux</td></tr>", "<b>x ", "<a b=\"", "<&", "<style>/*"}) {
            QTextDocument document;
            QElapsedTimer timer;
            timer.start();
            pasteHtml(document,
                      QString::fromLatin1(piece).repeated((1 << 18) / qsizetype(std::strlen(piece))));
            // Many times what it takes, sanitizers included; growth by the square would need minutes.
            QVERIFY2(timer.elapsed() < 20000, piece);
        }
    }
};

QTEST_MAIN(PasteTest)
#include "PasteTest.moc"
