#pragma once

#include <QByteArrayList>
#include <QList>
#include <QMap>
#include <QString>
#include <QtEndian>

#include <array>

/// Writes a file in the format of Jet 4. Sources: the description of the format that comes with mdbtools
/// (HACKING.md), and what its library reads; the rest of each page stays zero.
class Jet4Writer {
public:
    static constexpr int kPageSize = 4096;

    enum Type : char { Bool = 1, Byte, Int, Long, Money, Float, Double, Text = 10, Memo = 12 };

    struct Column {
        QString name;
        Type type;
    };

    /// A moved row lives elsewhere, behind one pointer or two.
    enum Place { InPlace, Struck, Moved, MovedTwice };

    struct Row {
        QByteArrayList cells; // as they are stored; a null array for Null
        Place place = InPlace;
    };

    template <typename Number>
    static QByteArray number(Number value) {
        return {reinterpret_cast<const char *>(&value), sizeof value};
    }

    /// A text as UTF-16.
    static QByteArray wide(const QString &text) {
        return {reinterpret_cast<const char *>(text.utf16()), 2 * text.size()};
    }

    /// A text in the compact form: single bytes and pairs by turns, with a zero between them.
    static QByteArray compact(const QString &text) {
        QByteArray bytes("\xff\xfe");
        bool single = true;
        for (const QChar character : text) {
            if (single != (character.row() == 0)) {
                bytes += '\0';
                single = !single;
            }
            bytes += number(character.unicode()).left(single ? 1 : 2);
        }
        return bytes;
    }

    /// A memo within its row.
    static QByteArray memo(const QByteArray &text) { return memoHead(text.size() | 0x80000000, 0) + text; }

    /// A memo in pieces of that size elsewhere.
    QByteArray memo(const QByteArray &text, qsizetype piece) {
        if (text.size() <= piece) {
            return memoHead(text.size() | 0x40000000, add("LVAL", text));
        }
        quint32 next = 0;
        for (qsizetype at = (text.size() - 1) / piece * piece; at >= 0; at -= piece) {
            next = add("LVAL", number(next) + text.mid(at, piece));
        }
        return memoHead(text.size(), next);
    }

    void table(const QString &name, const QList<Column> &columns, const QList<Row> &rows) {
        const int page = newPage();
        define(page, columns, rows);
        constexpr qint16 kTable = 1;
        m_catalog.append({{number(page), number(kTable), number(0), wide(name)}});
    }

    /// The tables of a book but these, without rows.
    void rest(const QStringList &present) {
        for (const char *name : {"Cocktails", "Ingre", "Categorie", "DureeReal", "Verre", "Realisation",
                                 "VIN", "Ingredient", "Quantite", "Mesure"}) {
            if (!present.contains(QString::fromLatin1(name), Qt::CaseInsensitive)) {
                table(QString::fromLatin1(name), {{u"N"_qs, Long}}, {});
            }
        }
    }

    QByteArray file() {
        constexpr int kCatalogPage = 2;
        define(kCatalogPage, {{u"Id"_qs, Long}, {u"Type"_qs, Int}, {u"Flags"_qs, Long}, {u"Name"_qs, Text}},
               m_catalog);
        put(0, 0, QByteArray("\0\1\0\0Standard Jet DB\0\1", 21));
        put(0, 0x3e, "\xfb\x8a\xbc\x4e"); // the mask of the head over no key: the pages are in clear
        return m_pages.join();
    }

private:
    static constexpr int kRowsOfAPage = 3; // few, so that small tables have several pages
    static constexpr quint16 kStruck = 0x8000;
    static constexpr quint16 kPointer = 0x4000;

    /// 0 for what is of no fixed size.
    static int sizeOf(Type type) {
        constexpr std::array sizes{0, 1, 1, 2, 4, 8, 4, 8};
        return std::size_t(type) < sizes.size() ? sizes.at(std::size_t(type)) : 0;
    }

    static QByteArray memoHead(qsizetype length, quint32 place) {
        return number(quint32(length)) + number(place) + QByteArray(4, '\0');
    }

    int newPage() {
        m_pages.append(QByteArray(kPageSize, '\0'));
        return int(m_pages.size()) - 1;
    }

    void put(int page, qsizetype at, const QByteArray &bytes) {
        m_pages[page].replace(at, bytes.size(), bytes);
    }

    /// Stores a row in a page of an owner. Gives the page, and in the lowest byte the number of the row.
    quint32 add(const QByteArray &owner, const QByteArray &row, quint16 flags = 0) {
        int &page = m_last[owner];
        const auto at = [&](int place) {
            return qFromLittleEndian<quint16>(m_pages[page].constData() + place);
        };
        const auto end = [&] { return at(12) == 0 ? kPageSize : at(12 + 2 * at(12)) & 0x1fff; };
        if (page == 0 || at(12) == kRowsOfAPage || end() - row.size() < 14 + 2 * kRowsOfAPage) {
            page = newPage();
            put(page, 0, "\1\1");
            put(page, 4, owner);
        }
        const int rows = at(12);
        const auto start = quint16(end() - row.size());
        put(page, start, row);
        put(page, 14 + 2 * rows, number(quint16(start | flags)));
        put(page, 12, number(quint16(rows + 1)));
        return quint32(page) << 8U | quint32(rows);
    }

    static QByteArray stored(const QList<Column> &columns, const QByteArrayList &cells) {
        QByteArray row = number(quint16(columns.size()));
        QByteArray variable;
        QByteArray offsets; // the last one first
        QByteArray present((columns.size() + 7) / 8, '\0');
        for (int i = 0; i < columns.size(); ++i) {
            row += cells[i].leftJustified(sizeOf(columns[i].type), '\0', true);
            present[i / 8] = char(present[i / 8] | int(!cells[i].isNull()) << i % 8);
        }
        for (int i = 0; i < columns.size(); ++i) {
            if (sizeOf(columns[i].type) == 0) {
                offsets.prepend(number(quint16(row.size())));
                row += cells[i];
            }
        }
        return row + number(quint16(row.size())) + offsets + number(quint16(offsets.size() / 2)) + present;
    }

    void define(int page, const QList<Column> &columns, const QList<Row> &rows) {
        const QByteArray owner = number(page);
        QByteArrayList heads; // what stands in the order of the rows: the row, or a pointer to it
        for (const Row &row : rows) {
            heads += stored(columns, row.cells);
            if (row.place == Moved || row.place == MovedTwice) {
                heads.last() = number(add(owner, heads.last(), kStruck));
            }
            if (row.place == MovedTwice) {
                heads.last() = number(add(owner, heads.last(), kStruck | kPointer));
            }
        }
        quint32 count = 0;
        for (int i = 0; i < rows.size(); ++i) {
            constexpr std::array<quint16, 4> kFlags{0, kStruck, kPointer, kPointer};
            add(owner, heads[i], kFlags.at(rows[i].place));
            count += rows[i].place == Struck ? 0 : 1;
        }
        // All pages up to here: a map may name those of others too.
        const auto bits = m_pages.size();
        const quint32 map =
            add(number(0), QByteArray(5, '\0') + QByteArray(bits / 8, '\xff') + char((1 << bits % 8) - 1));
        put(page, 0, "\2\1");
        put(page, 16, number(count));
        put(page, 40, "N");
        put(page, 45, number(quint16(columns.size())));
        put(page, 55, number(map) + number(map));
        qsizetype at = 63;
        quint16 fixed = 0;
        quint16 variable = 0;
        QByteArray names;
        for (quint16 i = 0; i < columns.size(); ++i, at += 25) {
            const auto size = quint16(sizeOf(columns[i].type));
            put(page, at, QByteArray(1, columns[i].type));
            put(page, at + 5, number(i) + number(variable) + number(i));
            put(page, at + 15, QByteArray(1, size == 0 ? '\0' : '\1'));
            put(page, at + 21, number(fixed) + number(size));
            fixed += size;
            variable += size == 0 ? 1 : 0;
            names += number(quint16(2 * columns[i].name.size())) + wide(columns[i].name);
        }
        put(page, 43, number(variable));
        put(page, at, names);
        put(page, 8, number(quint32(at + names.size())));
    }

    QByteArrayList m_pages{3, QByteArray(kPageSize, '\0')}; // the head, one without use, the catalogue
    QMap<QByteArray, int> m_last;                           ///< the page of each owner that is being filled
    QList<Row> m_catalog;
};

/// A long text of characters of one and of more bytes.
inline QString longText() {
    return u"Découper en dés, cuire « à l'œil » \U0001F373. "_qs.repeated(200);
}

/// A book of the Jet 4 format with four recipes, in which all types of columns, forms of texts and fates of rows occur.
inline QByteArray oldBook() {
    using W = Jet4Writer;
    W book;
    const QByteArray null;
    const auto recipe = [&](int number, const QByteArray &title, const QByteArray &method) {
        return QByteArrayList{W::number(number), title, method, null, null, null, null, null, null};
    };
    book.table(
        u"COCKTAILS"_qs,
        {{u"numero"_qs, W::Long},
         {u"Recette"_qs, W::Text},
         {u"preparation"_qs, W::Memo},
         {u"NCategorie"_qs, W::Byte},
         {u"Nverre"_qs, W::Int},
         {u"Nreal"_qs, W::Bool},
         {u"Cout"_qs, W::Money},
         {u"difficulte"_qs, W::Float},
         {u"Teneur"_qs, W::Double}},
        {{{W::number(7), W::compact(u"Œufs d'été à l'ail"_qs), W::memo(W::compact(u"Cuire."_qs)),
           W::number(quint8(200)), W::number(qint16(-1)), "yes", W::number(qint64(50'000)), W::number(3.0F),
           W::number(4e9)},
          W::MovedTwice},
         {recipe(9, W::wide(u"Struck"_qs), null), W::Struck},
         {recipe(5, W::wide(u"Œuf \U0001F373"_qs), book.memo(W::compact(u"Poêler."_qs), 100)), W::Moved},
         {recipe(6, null, book.memo(W::wide(longText()), 3000))},
         {recipe(2'000'000, "", W::memo("")), W::Moved}});
    book.table(u"Ingre"_qs, {{u"Numero"_qs, W::Long}, {u"NIngre"_qs, W::Long}},
               {{{W::number(7), W::number(2)}, W::Moved},
                {{W::number(7), W::number(1)}},
                {{W::number(5), null}, W::Struck},
                {{W::number(5), null}}});
    book.rest({u"COCKTAILS"_qs, u"Ingre"_qs});
    return book.file();
}
