#include "Query.h"

#include <QStringView>

#include <vector>

namespace platform::database {

namespace {

struct Token {
    qsizetype begin;
    qsizetype end;
    QStringView text;
    bool quoted;

    bool is(QStringView word) const { return !quoted && text.compare(word, Qt::CaseInsensitive) == 0; }

    bool isName() const {
        return quoted ? text.front() != u'\'' : text.front().isLetter() || text.front() == u'_';
    }

    QByteArray name() const { return (quoted ? text.sliced(1).chopped(1) : text).toUtf8(); }
};

bool isWordCharacter(QChar c) {
    return c.isLetterOrNumber() || c == u'_';
}

/// Where a token that starts at `begin` ends. A quoted one ends at its closing quote: a doubled quote inside
/// makes two tokens side by side, which does no harm here.
qsizetype endOfToken(QStringView sql, qsizetype begin) {
    const QChar first = sql[begin];
    if (first == u'\'' || first == u'"' || first == u'`' || first == u'[') {
        const qsizetype close = sql.indexOf(first == u'[' ? QChar(u']') : first, begin + 1);
        return close < 0 ? sql.size() : close + 1;
    }
    qsizetype end = begin + 1;
    if (isWordCharacter(first)) {
        while (end < sql.size() && isWordCharacter(sql[end])) {
            ++end;
        }
    }
    return end;
}

std::vector<Token> tokenize(QStringView sql) {
    std::vector<Token> tokens;
    for (qsizetype begin = 0; begin < sql.size();) {
        if (sql[begin].isSpace()) {
            ++begin;
            continue;
        }
        const qsizetype end = endOfToken(sql, begin);
        const bool quoted = end - begin > 1 && !isWordCharacter(sql[begin]);
        tokens.push_back({begin, end, sql.sliced(begin, end - begin), quoted});
        begin = end;
    }
    return tokens;
}

/// The place of the first of the words outside all parentheses; the number of tokens if there is none.
size_t findOutside(const std::vector<Token> &tokens, size_t from, std::initializer_list<QStringView> words) {
    int depth = 0;
    for (size_t i = from; i < tokens.size(); ++i) {
        depth += int(tokens[i].is(u"(")) - int(tokens[i].is(u")"));
        for (const QStringView word : words) {
            if (depth == 0 && tokens[i].is(word)) {
                return i;
            }
        }
    }
    return tokens.size();
}

/// Reads "order by column [asc|desc]" from a token to the end; false when something else stands there.
bool parseOrder(const std::vector<Token> &tokens, size_t at, TableQuery &query) {
    const size_t count = tokens.size() - at;
    if (count < 3 || count > 4 || !tokens[at].is(u"order") || !tokens[at + 1].is(u"by") ||
        !tokens[at + 2].isName()) {
        return false;
    }
    query.orderColumn = tokens[at + 2].name();
    query.descending = count == 4 && tokens[at + 3].is(u"desc");
    return count == 3 || query.descending || tokens[at + 3].is(u"asc");
}

QString withoutSemicolon(const QString &statement) {
    const QString sql = statement.trimmed();
    return sql.endsWith(u';') ? sql.chopped(1) : sql;
}

} // namespace

std::optional<TableQuery> parseTableQuery(const QString &statement) {
    const QString sql = withoutSemicolon(statement);
    const std::vector<Token> tokens = tokenize(sql);
    if (tokens.size() < 4 || !tokens[0].is(u"select") || !tokens[1].is(u"*") || !tokens[2].is(u"from") ||
        !tokens[3].isName()) {
        return std::nullopt;
    }

    TableQuery query;
    query.table = tokens[3].name();
    size_t at = 4;
    if (at < tokens.size() && tokens[at].is(u"where")) {
        at = findOutside(tokens, 5, {u"order", u"group", u"limit", u"union", u"except", u"intersect", u";"});
        const qsizetype end = at < tokens.size() ? tokens[at].begin : sql.size();
        query.condition = QStringView(sql).first(end).sliced(tokens[4].end).trimmed().toUtf8();
        if (query.condition.isEmpty()) {
            return std::nullopt;
        }
    }
    if (at < tokens.size() && !parseOrder(tokens, at, query)) {
        return std::nullopt;
    }
    return query;
}

QString withoutDeleteStar(const QString &sql) {
    const std::vector<Token> tokens = tokenize(sql);
    if (tokens.size() > 2 && tokens[0].is(u"delete") && tokens[1].is(u"*") && tokens[2].is(u"from")) {
        return u"DELETE " + sql.sliced(tokens[2].begin);
    }
    return sql;
}

QByteArray quotedName(const QByteArray &name) {
    return '"' + QByteArray(name).replace('"', "\"\"") + '"';
}

} // namespace platform::database
