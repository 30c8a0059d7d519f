#pragma once

#include <QByteArray>
#include <QList>
#include <QVariant>

/// Makes small files of Jet 3: pages of 2,048 bytes, one for the definition and one for the rows of each table. What
/// is left out (indexes, free space) no reader needs.
class Jet3Book {
public:
    struct Column {
        QByteArray name;
        char type;
    };

    /// A row has an int or a QByteArray in code page 1252 for each column; an invalid QVariant is Null.
    struct Table {
        QByteArray name;
        QList<Column> columns;
        QList<QVariantList> rows;
    };

    static constexpr char kInt = 3;
    static constexpr char kLong = 4;
    static constexpr char kText = 10;
    static constexpr char kMemo = 12;

    static QByteArray file(QList<Table> tables) {
        Table catalog{"MSysObjects", {{"Id", kLong}, {"Type", kInt}, {"Flags", kLong}, {"Name", kText}}, {}};
        for (int i = 0; i < tables.size(); ++i) {
            catalog.rows.append({kFirstTable + 2 * (i + 1), 1, 0, tables[i].name});
        }
        tables.prepend(catalog);

        QByteArray pages;
        QList<QByteArray> maps;
        for (int i = 0; i < tables.size(); ++i) {
            const int page = kFirstTable + 2 * i;
            pages += definition(tables[i], i) + dataPage(page, rowsOf(tables[i]));
            QByteArray map(16, '\0');
            map[(page + 1) / 8] = char(1 << ((page + 1) % 8));
            maps.append(QByteArray(5, '\0') + map);
        }
        return head() + dataPage(0, maps) + pages;
    }

private:
    static constexpr int kPage = 2048;
    static constexpr int kMaps = 1;
    static constexpr int kFirstTable = 2;

    static QByteArray number(quint32 value, int size) {
        return QByteArray(reinterpret_cast<const char *>(&value), sizeof value).first(size);
    }

    static bool isFixed(char type) { return type == kInt || type == kLong; }

    static int sizeOf(char type) { return type == kInt ? 2 : 4; }

    static QByteArray head() {
        QByteArray page = QByteArray("\0\1\0\0Standard Jet DB\0", 20).leftJustified(kPage, '\0');
        // Masked: French, code page 1252, and a key of zero for pages in clear.
        page.replace(0x3a, 8, QByteArray::fromHex("e8c79f46fb8abc4e"));
        return page;
    }

    /// @param map its row on the page of maps
    static QByteArray definition(const Table &table, int map) {
        QByteArray entries;
        QByteArray names;
        quint32 variable = 0;
        quint32 offset = 0;
        for (int i = 0; i < table.columns.size(); ++i) {
            const auto &[name, type] = table.columns[i];
            const bool fixed = isFixed(type);
            entries += type + number(quint32(i), 2) + number(fixed ? 0 : variable, 2) +
                       number(quint32(i), 2) + QByteArray(6, '\0') + (fixed ? '\3' : '\2') +
                       number(offset, 2) + number(fixed ? quint32(sizeOf(type)) : 255, 2);
            names += char(name.size()) + name;
            offset += fixed ? quint32(sizeOf(type)) : 0;
            variable += fixed ? 0 : 1;
        }
        const QByteArray mapPlace = char(map) + number(kMaps, 3);
        const QByteArray page = "\2\1VC" + QByteArray(8, '\0') + number(quint32(table.rows.size()), 4) +
                                QByteArray(4, '\0') + 'N' + number(quint32(table.columns.size()), 2) +
                                number(variable, 2) + number(quint32(table.columns.size()), 2) +
                                QByteArray(8, '\0') + mapPlace + mapPlace + entries + names;
        return page.leftJustified(kPage, '\0');
    }

    static QList<QByteArray> rowsOf(const Table &table) {
        QList<QByteArray> rows;
        for (const QVariantList &values : table.rows) {
            rows.append(row(table.columns, values));
        }
        return rows;
    }

    static QByteArray row(const QList<Column> &columns, const QVariantList &values) {
        QByteArray fixed(1, char(columns.size()));
        QByteArray marks((columns.size() + 7) / 8, '\0');
        QList<QByteArray> variable;
        for (int i = 0; i < columns.size(); ++i) {
            if (values[i].isValid()) {
                marks[i / 8] = char(marks[i / 8] | 1 << (i % 8));
            }
            if (isFixed(columns[i].type)) {
                fixed += number(quint32(values[i].toInt()), sizeOf(columns[i].type));
            } else {
                const QByteArray text = values[i].toByteArray();
                const bool memo = columns[i].type == kMemo && values[i].isValid();
                variable.append((memo ? number(0x80000000U | quint32(text.size()), 4) + QByteArray(8, '\0')
                                      : QByteArray()) +
                                text);
            }
        }
        QByteArray content = fixed;
        QByteArray ends; // of the values, the last first
        for (const QByteArray &text : variable) {
            ends.prepend(char(content.size()));
            content += text;
        }
        return content + char(content.size()) + ends + char(variable.size()) + marks;
    }

    static QByteArray dataPage(int owner, const QList<QByteArray> &rows) {
        QByteArray page =
            "\1\1" + QByteArray(2, '\0') + number(quint32(owner), 4) + number(quint32(rows.size()), 2);
        QByteArray content;
        for (const QByteArray &row : rows) {
            content.prepend(row);
            page += number(quint32(kPage - content.size()), 2);
        }
        return page.leftJustified(kPage - int(content.size()), '\0') + content;
    }
};
