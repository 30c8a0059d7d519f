#include "Output.h"

#include "Book.h"
#include "JetStream.h"

#include <cstdio>

namespace platform::jet {

namespace {

template <typename Number>
void append(std::string &content, Number number) {
    content.append(reinterpret_cast<const char *>(&number), sizeof number);
}

void append(std::string &content, std::string_view text) {
    append(content, std::uint32_t(text.size()));
    content.append(text);
}

/// Appends one alternative of a value.
class Appender {
public:
    explicit Appender(std::string &content) : m_content(content) {}

    void operator()(std::monostate) { kind(ValueKind::Null); }

    void operator()(std::int64_t number) {
        kind(ValueKind::Number);
        append(m_content, number);
    }

    void operator()(double number) {
        kind(ValueKind::Real);
        append(m_content, number);
    }

    void operator()(const std::string &text) {
        kind(ValueKind::Text);
        append(m_content, std::string_view(text));
    }

private:
    void kind(ValueKind kind) { m_content.push_back(char(kind)); }

    std::string &m_content;
};

} // namespace

void Output::begin(std::uint64_t rows) {
    append(m_content, rows);
    write(RecordKind::Begin);
}

void Output::table(std::string_view name, const std::vector<std::string> &columns) {
    append(m_content, name);
    append(m_content, std::uint32_t(columns.size()));
    for (const std::string &column : columns) {
        append(m_content, std::string_view(column));
    }
    write(RecordKind::Table);
}

void Output::row(const std::vector<Value> &values) {
    for (const Value &value : values) {
        std::visit(Appender(m_content), value);
    }
    if (m_content.size() > kMaxRecordSize) {
        m_content.clear();
        throw Damage("un enregistrement est trop long.");
    }
    write(RecordKind::Row);
}

void Output::end() {
    write(RecordKind::End);
}

void Output::failure(std::string_view text) {
    m_content.clear();
    append(m_content, text);
    write(RecordKind::Failure);
}

void Output::write(RecordKind kind) {
    std::string head(1, char(kind));
    append(head, std::uint32_t(m_content.size()));
    std::fwrite(head.data(), 1, head.size(), stdout);
    std::fwrite(m_content.data(), 1, m_content.size(), stdout);
    m_content.clear();
}

} // namespace platform::jet
