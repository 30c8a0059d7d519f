// The page in the form for which the pages of the partner's site are made, and in which their markers are searched:
// that of a classic browser control, as its innerHTML gives it for the document element. The value of this script is the
// function; called with document.documentElement, in any world of the page, it returns the text and changes nothing.
//
// Rules
//  1. Names of elements in upper case, of attributes in lower case, attributes in the order of the source.
//  2. A value of letters, digits and - _ . : # % stands without quotes, any other and the empty one within
//     them, and so does each address in src or href. Addresses are those written in the page, not resolved.
//  3. In texts &, <, > and the no-break blank are escaped, in values &, the quote and the no-break blank;
//     every other character is itself, whatever the source wrote for it.
//  4. Comments stay as they are, and so does the content of the elements that hold no markup, scripts and
//     styles first.
//  5. The line ends of the source stay. The document knows them as line feeds; here each is a carriage return
//     and a line feed.
//  6. Elements that are always empty have no end tag. LI, DT, DD, P and OPTION have none where the next element
//     has the same name, whatever text lies between. Of LI, DT and DD, the blanks behind them stand before their
//     end tag: so a list reads the same whether its source has end tags or not.
//
// The walk is a loop: no page nests too deep for it.
(function () {
    'use strict';

    const ELEMENT = 1;
    const TEXT = 3;
    const COMMENT = 8;

    const EMPTY = new Set(['AREA', 'BASE', 'BASEFONT', 'BGSOUND', 'BR', 'COL', 'EMBED', 'FRAME', 'HR', 'IMG',
        'INPUT', 'KEYGEN', 'LINK', 'META', 'PARAM', 'SOURCE', 'TRACK', 'WBR']);
    const WITHOUT_MARKUP = new Set(['SCRIPT', 'STYLE', 'XMP', 'IFRAME', 'NOEMBED', 'NOFRAMES', 'NOSCRIPT',
        'PLAINTEXT']);
    const END_LEFT_OUT = new Set(['LI', 'DT', 'DD', 'P', 'OPTION']);
    const ITEMS = new Set(['LI', 'DT', 'DD']);
    const ADDRESSES = new Set(['src', 'href']);
    const BLANKS = /^[ \t\n\f\r]*$/;
    const PLAIN_VALUE = /^[A-Za-z0-9\-_.:#%]+$/;

    // A form gives the control of a name in the place of its own property of that name: a walk by node.nextSibling
    // would go wherever the page wants, and round and round.
    const reader = (kind, property) => {
        const get = Object.getOwnPropertyDescriptor(kind.prototype, property).get;
        return (node) => get.call(node);
    };
    const typeOf = reader(Node, 'nodeType');
    const firstOf = reader(Node, 'firstChild');
    const nextOf = reader(Node, 'nextSibling');
    const nextElementOf = reader(Element, 'nextElementSibling');
    const parentOf = reader(Node, 'parentNode');
    const dataOf = reader(Node, 'nodeValue');
    const attributesOf = reader(Element, 'attributes');
    const readName = reader(Node, 'nodeName');
    const nameOf = (element) => readName(element).toUpperCase();

    const escapeAnd = (text) => text.replace(/&/g, '&amp;').replace(/\u00a0/g, '&nbsp;');
    const escapeText = (text) => escapeAnd(text).replace(/</g, '&lt;').replace(/>/g, '&gt;');
    const escapeValue = (text) => escapeAnd(text).replace(/"/g, '&quot;');

    function attribute(name, value) {
        const plain = PLAIN_VALUE.test(value) && !ADDRESSES.has(name);
        return ' ' + name + '=' + (plain ? value : '"' + escapeValue(value) + '"');
    }

    function startTag(element) {
        const attributes = attributesOf(element);
        let tag = '<' + nameOf(element);
        for (let i = 0; i < attributes.length; ++i) {
            tag += attribute(attributes[i].name.toLowerCase(), attributes[i].value);
        }
        return tag + '>';
    }

    function endTag(element) {
        const name = nameOf(element);
        const next = nextElementOf(element);
        const leftOut = END_LEFT_OUT.has(name) && next && nameOf(next) === name;
        return EMPTY.has(name) || leftOut ? '' : '</' + name + '>';
    }

    // The blanks that count as the element's own; null for none.
    function blanksBehind(element) {
        const next = nextOf(element);
        const own = ITEMS.has(nameOf(element)) && next && typeOf(next) === TEXT && BLANKS.test(dataOf(next));
        return own ? next : null;
    }

    function opening(node) {
        switch (typeOf(node)) {
        case ELEMENT:
            return startTag(node);
        case COMMENT:
            return '<!--' + dataOf(node) + '-->';
        case TEXT:
            return WITHOUT_MARKUP.has(nameOf(parentOf(node))) ? dataOf(node) : escapeText(dataOf(node));
        default:
            return '';
        }
    }

    return function (root) {
        const parts = [];
        let node = firstOf(root);
        while (node) {
            parts.push(opening(node));
            if (firstOf(node)) {
                node = firstOf(node);
                continue;
            }
            let closed = node;
            for (node = null; !node && closed !== root; closed = parentOf(closed)) {
                let last = closed;
                if (typeOf(closed) === ELEMENT) {
                    const blanks = blanksBehind(closed);
                    parts.push(blanks ? opening(blanks) : '', endTag(closed));
                    last = blanks || closed;
                }
                node = nextOf(last);
            }
        }
        return parts.join('').replace(/\r?\n/g, '\r\n');
    };
})()
