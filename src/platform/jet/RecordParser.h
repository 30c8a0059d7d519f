#pragma once

#include "JetStream.h"

#include <QByteArray>
#include <QString>

namespace platform::jet {

class JetSink;

/// Takes the bytes of the reading program apart, as they come, and hands what they say to a sink. It trusts none
/// of them.
class RecordParser {
public:
    /// @param maxBytes more than this in all is nonsense
    RecordParser(JetSink &sink, qint64 maxBytes) : m_sink(sink), m_bytesLeft(maxBytes) {}

    /// @throws JetError for bytes that are no record, and what the sink throws
    void append(const QByteArray &bytes);

    bool ended() const { return m_ended; }

    /// The text of the failure that the program reported; empty when it reported none.
    const QString &failure() const { return m_failure; }

    qint64 rows() const { return m_rows; }

    qint64 total() const { return m_total; }

private:
    class Content;

    void take(RecordKind kind, Content content);
    void takeTable(Content &content);
    void takeRow(Content &content);

    JetSink &m_sink;
    qint64 m_bytesLeft;
    QByteArray m_buffer;
    quint32 m_columns = 0;
    qint64 m_rows = 0;
    qint64 m_total = 0;
    QString m_failure;
    bool m_ended = false;
};

} // namespace platform::jet
