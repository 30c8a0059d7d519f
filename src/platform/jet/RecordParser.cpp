#include "RecordParser.h"

#include "JetReader.h"

#include <cstring>

namespace platform::jet {

namespace {

[[noreturn]] void refuse() {
    throw JetError(QStringLiteral("Le lecteur des anciens livres a donné une réponse incompréhensible."));
}

} // namespace

/// Reads the content of a record from its start.
class RecordParser::Content {
public:
    explicit Content(QByteArrayView bytes) : m_bytes(bytes) {}

    bool atEnd() const { return m_bytes.isEmpty(); }

    template <typename Number>
    Number number() {
        Number value;
        std::memcpy(&value, take(sizeof value).data(), sizeof value);
        return value;
    }

    QString text() { return QString::fromUtf8(take(number<quint32>())); }

    QVariant value() {
        switch (ValueKind(number<quint8>())) {
        case ValueKind::Null:
            return {};
        case ValueKind::Number:
            return qlonglong(number<qint64>());
        case ValueKind::Real:
            return number<double>();
        case ValueKind::Text:
            return text();
        }
        refuse();
    }

private:
    QByteArrayView take(qsizetype size) {
        if (size > m_bytes.size()) {
            refuse();
        }
        const QByteArrayView taken = m_bytes.first(size);
        m_bytes = m_bytes.sliced(size);
        return taken;
    }

    QByteArrayView m_bytes;
};

void RecordParser::append(const QByteArray &bytes) {
    m_bytesLeft -= bytes.size();
    if (m_bytesLeft < 0) {
        refuse();
    }
    m_buffer += bytes;

    QByteArrayView rest(m_buffer);
    while (rest.size() >= kRecordHeadSize) {
        quint32 size = 0;
        std::memcpy(&size, rest.data() + 1, sizeof size);
        if (size > kMaxRecordSize) {
            refuse();
        }
        if (rest.size() < kRecordHeadSize + qsizetype(size)) {
            break;
        }
        take(RecordKind(rest.front()), Content(rest.sliced(kRecordHeadSize, size)));
        rest = rest.sliced(kRecordHeadSize + qsizetype(size));
    }
    m_buffer.remove(0, m_buffer.size() - rest.size());
}

void RecordParser::take(RecordKind kind, Content content) {
    if (m_ended || !m_failure.isEmpty()) {
        refuse();
    }
    switch (kind) {
    case RecordKind::Begin:
        m_total = content.number<qint64>();
        break;
    case RecordKind::Table:
        takeTable(content);
        break;
    case RecordKind::Row:
        takeRow(content);
        break;
    case RecordKind::End:
        m_ended = true;
        break;
    case RecordKind::Failure:
        m_failure = content.text();
        break;
    default:
        refuse();
    }
    if (!content.atEnd()) {
        refuse();
    }
}

void RecordParser::takeTable(Content &content) {
    const QString name = content.text();
    m_columns = content.number<quint32>();
    if (m_columns > kMaxColumns) {
        refuse();
    }
    QStringList columns;
    for (quint32 i = 0; i < m_columns; ++i) {
        columns.append(content.text());
    }
    m_sink.table(name, columns);
}

void RecordParser::takeRow(Content &content) {
    if (m_columns == 0) {
        refuse();
    }
    QVariantList values;
    values.reserve(m_columns);
    for (quint32 i = 0; i < m_columns; ++i) {
        values.append(content.value());
    }
    ++m_rows;
    m_sink.row(values);
}

} // namespace platform::jet
