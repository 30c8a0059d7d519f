#include "Recordset.h"

#include "Cursor.h"
#include "DatabaseError.h"

namespace platform::database {

bool Field::IsNull() const {
    return m_cursor.isNull(m_position);
}

QString Field::Text() const {
    return m_cursor.text(m_position);
}

QByteArrayView Field::Utf8() const {
    return m_cursor.utf8(m_position);
}

qint64 Field::Number() const {
    return m_cursor.number(m_position);
}

QVariant Field::Value() const {
    return m_cursor.value(m_position);
}

Field &Field::operator=(const QVariant &value) {
    m_cursor.setValue(m_position, value);
    return *this;
}

Recordset::Recordset(std::unique_ptr<Cursor> cursor) : m_cursor(std::move(cursor)) {}

Recordset::Recordset(Recordset &&) noexcept = default;
Recordset &Recordset::operator=(Recordset &&) noexcept = default;
Recordset::~Recordset() = default;

Cursor &Recordset::cursor() const {
    if (!m_cursor) {
        throw DatabaseError("Le jeu d'enregistrements est fermé.");
    }
    return *m_cursor;
}

qsizetype Recordset::RecordCount() const {
    return cursor().count();
}

bool Recordset::AtEnd() const {
    return cursor().atEnd();
}

void Recordset::MoveNext() {
    cursor().moveNext();
}

Field Recordset::Fields(int position) {
    return {cursor(), cursor().column(position)};
}

Field Recordset::Fields(QStringView name) {
    return {cursor(), cursor().column(name)};
}

void Recordset::AddNew() {
    cursor().addNew();
}

void Recordset::Edit() {
    cursor().edit();
}

void Recordset::Update() {
    cursor().update();
}

void Recordset::Delete() {
    cursor().remove();
}

RowMark Recordset::LastModified() const {
    return cursor().lastModified();
}

void Recordset::SetBookmark(RowMark mark) {
    cursor().setBookmark(mark);
}

void Recordset::Close() {
    m_cursor.reset();
}

} // namespace platform::database
