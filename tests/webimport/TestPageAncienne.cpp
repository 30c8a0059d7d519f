// The script on a document of plain objects, which have what it asks of a node.
#include "webimport/PageAncienne.h"

#include <QJSEngine>
#include <QTest>

namespace {

/// A document of which the script can ask what it needs. e(name, [attribute, value, ...], children...) makes an
/// element; children are elements, texts, and c(comment). A control's name hides a form's property of that name.
const QString kDocument = uR"js(
var Node = class Node {
    constructor(type, name, data) { this.is = { type, name, data, first: null, next: null, parent: null }; }
    get nodeType() { return this.is.type; }
    get nodeName() { return this.is.name; }
    get nodeValue() { return this.is.data; }
    get firstChild() { return this.is.first; }
    get nextSibling() { return this.is.next; }
    get parentNode() { return this.is.parent; }
};
var Element = class extends Node {
    get attributes() { return this.is.attributes; }
};
function c(data) { return new Node(8, '#comment', data); }
function e(name, attributes, ...children) {
    const element = new Element(1, name, null);
    element.is.attributes = [];
    for (let i = 0; i < attributes.length; i += 2)
        element.is.attributes.push({ name: attributes[i], value: attributes[i + 1] });
    let last = null;
    for (let child of children) {
        if (typeof child === 'string') child = new Node(3, '#text', child);
        child.is.parent = element;
        if (last) last.is.next = child; else element.is.first = child;
        if (name === 'FORM') Object.defineProperty(element, child.attributes[0].value, { value: child });
        last = child;
    }
    return element;
}
)js"_qs;

} // namespace

class TestPageAncienne : public QObject {
    Q_OBJECT

private:
    QString texte(const QString &enfants) {
        QJSValue fonction = m_moteur.evaluate(webimport::ScriptPageAncienne());
        const QJSValue racine = m_moteur.evaluate(u"e('HTML', [], " + enfants + u")");
        return fonction.call({racine}).toString();
    }

    QJSEngine m_moteur;

private Q_SLOTS:

    void initTestCase() {
        const QJSValue document = m_moteur.evaluate(kDocument);
        QVERIFY2(!document.isError(), qPrintable(document.toString()));
    }

    void rules_data() {
        QTest::addColumn<QString>("enfants");
        QTest::addColumn<QString>("attendu");
        const auto regle = [](const char *nom, QStringView enfants, QStringView attendu) {
            QTest::newRow(nom) << enfants.toString() << attendu.toString();
        };
        regle("names", u"e('head', []), e('body', ['bgColor', '#fff', 'id', 'a'], e('br', []))",
              u"<HEAD></HEAD><BODY bgcolor=#fff id=a><BR></BODY>");
        regle("plain values", u"e('FONT', ['size', '-2', 'face', 'a_b.c:d%'])",
              u"<FONT size=-2 face=a_b.c:d%></FONT>");
        regle("quoted values", u"e('TD', ['title', 'a \"b\" & <c>', 'alt', '', 'width', '1+'])",
              u"<TD title=\"a &quot;b&quot; &amp; <c>\" alt=\"\" width=\"1+\"></TD>");
        regle("addresses", u"e('IMG', ['src', 'a.gif', 'border', '0']), e('A', ['href', 'r?a=1&groupid=9'])",
              u"<IMG src=\"a.gif\" border=0><A href=\"r?a=1&amp;groupid=9\"></A>");
        regle("text", u"e('P', [], 'a < b & c > d \"é\\u00a0œ\"')",
              u"<P>a &lt; b &amp; c &gt; d \"é&nbsp;œ\"</P>");
        regle("comments and raw text",
              u"c(' TITRE & <RECETTE> '), e('SCRIPT', [], 'if (a < b && c) {}'), e('STYLE', [], 'a > b {}')",
              u"<!-- TITRE & <RECETTE> --><SCRIPT>if (a < b && c) {}</SCRIPT><STYLE>a > b {}</STYLE>");
        regle("line ends", u"e('P', [], 'a\\nb', c('\\n')), '\\n'", u"<P>a\r\nb<!--\r\n--></P>\r\n");
        regle("end tags left out", u"e('UL', [], e('LI', [], 'a'), e('LI', [], 'b'), ' ', e('LI', [], 'c'))",
              u"<UL><LI>a<LI>b</LI> <LI>c</LI></UL>");
        regle("end tags of different kinds",
              u"e('DL', [], e('DT', []), e('DT', []), e('DD', []), e('DD', []), e('DT', []))",
              u"<DL><DT><DT></DT><DD><DD></DD><DT></DT></DL>");
        regle("end tags of paragraphs and options",
              u"e('P', []), e('P', []), e('OPTION', []), e('OPTION', []), c('x')",
              u"<P><P></P><OPTION><OPTION></OPTION><!--x-->");
        regle("other siblings of one kind", u"e('TD', [], e('B', []), e('B', [])), e('TD', [])",
              u"<TD><B></B><B></B></TD><TD></TD>");
        regle("controls that hide properties of their form",
              u"e('FORM', [], e('INPUT', ['name', 'nextSibling']), e('INPUT', ['name', 'nodeName'])), "
              u"e('HR', [])",
              u"<FORM><INPUT name=nextSibling><INPUT name=nodeName></FORM><HR>");
        regle("nothing", u"''", u"");
    }

    void rules() {
        QFETCH(const QString, enfants);
        QTEST(texte(enfants), "attendu");
    }

    void deepPage() {
        const QString profonde =
            u"(function () { let n = e('I', []); for (let i = 1; i < 50000; ++i) n = e('I', [], n); "
            "return n; })()"_qs;
        QCOMPARE(texte(profonde).size(), 50'000 * 7);
    }
};

QTEST_GUILESS_MAIN(TestPageAncienne)
#include "TestPageAncienne.moc"
