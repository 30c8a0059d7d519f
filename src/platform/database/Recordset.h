#pragma once

#include <QByteArrayView>
#include <QString>
#include <QStringView>
#include <QVariant>

#include <memory>

namespace platform::database {

class Connection;
class Cursor;

/// A row of a table, whatever its place in a recordset.
enum class RowMark : qint64 {};

/// One column of a recordset's current row. Short-lived: it follows the recordset, which must outlive it.
class Field {
public:
    Field(const Field &) = delete;
    Field &operator=(const Field &) = delete;
    ~Field() = default;

    /// True for Null, which is not the empty text.
    bool IsNull() const;
    /// The value as text; empty for Null.
    QString Text() const;
    /// The value as text in UTF-8; for the first two columns of a table without a copy. Valid until the recordset moves
    /// or changes, or the next call.
    QByteArrayView Utf8() const;
    /// The value as a number; 0 for Null and for a text that is no number.
    qint64 Number() const;
    /// A QString, qlonglong, double or QByteArray as stored; an invalid QVariant is Null.
    QVariant Value() const;

    /// Writes into the row that Edit or AddNew has begun; an invalid QVariant writes Null.
    Field &operator=(const QVariant &value);

    Field &operator=(const QString &text) { return *this = QVariant(text); }

private:
    friend class Recordset;

    Field(Cursor &cursor, int position) : m_cursor(cursor), m_position(position) {}

    Cursor &m_cursor;
    int m_position;
};

/// The rows of a query and the place in them. All rows are known when it is opened, by their mark and their
/// first two columns; the other columns of the current row are read when they are asked for. Those of a whole table
/// without an order are known from the first question about them on: adding to a large table costs no reading.
///
/// Every operation without the row that it needs throws DatabaseError.
class Recordset {
public:
    Recordset(Recordset &&) noexcept;
    Recordset &operator=(Recordset &&) noexcept;
    ~Recordset();

    /// The number of rows of the query, right from the start.
    qsizetype RecordCount() const;
    /// True past the last row, and when there is no row.
    bool AtEnd() const;
    /// Goes to the next row; a change begun and not committed by Update is given up.
    void MoveNext();

    /// A column by its place from 0.
    Field Fields(int position);
    /// A column by its name, without regard to case.
    Field Fields(QStringView name);

    /// Begins a new row, which Update appends to the table and to these rows. The current row stays current.
    void AddNew();
    /// Begins a change of the current row.
    void Edit();
    /// Writes and commits the new row or the change.
    void Update();
    /// Deletes the current row and commits. Then no row is current until MoveNext, which goes to the row
    /// after.
    void Delete();

    /// The row last written by Update.
    RowMark LastModified() const;
    /// Makes a row of this recordset the current one; where the rows are not known yet, it is looked for with them.
    void SetBookmark(RowMark mark);

    /// Ends the cursor before the scope does; a change begun and not committed is given up.
    void Close();

private:
    friend class Database;
    explicit Recordset(std::unique_ptr<Cursor> cursor);
    Cursor &cursor() const;

    std::unique_ptr<Cursor> m_cursor;
};

} // namespace platform::database
