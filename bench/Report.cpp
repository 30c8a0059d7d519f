#include "Report.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cstdio>
#include <stdexcept>

namespace bench {

namespace {

QString number(double value) {
    return value > 0 ? QString::number(value, 'f', value < 10 ? 3 : 1) : QString();
}

QString goalText(const Result &result) {
    const QString limit = QString::number(result.goal);
    switch (result.kind) {
    case Goal::Ratio:
        return limit + QStringLiteral(" x");
    case Goal::Milliseconds:
        return limit + QStringLiteral(" ms");
    case Goal::Mebibytes:
        return limit + QStringLiteral(" MiB");
    case Goal::None:
        return {};
    }
    return {};
}

void printLine(const QString &scenario, const QString &book, const QStringList &columns) {
    QString line = scenario.leftJustified(44) + book.leftJustified(20);
    for (const QString &column : columns) {
        line += column.rightJustified(10);
    }
    std::puts(qUtf8Printable(line));
    std::fflush(stdout);
}

QJsonObject toJson(const Result &result) {
    QJsonObject object{{QStringLiteral("scenario"), result.scenario},
                       {QStringLiteral("book"), result.book},
                       {QStringLiteral("ours"), result.ours}};
    if (result.bare > 0) {
        object[QStringLiteral("bare")] = result.bare;
        object[QStringLiteral("ratio")] = result.ratio();
    }
    if (result.kind != Goal::None) {
        object[QStringLiteral("goal")] = goalText(result);
        object[QStringLiteral("ok")] = result.reached();
    }
    return object;
}

} // namespace

bool Result::reached() const {
    return kind == Goal::None || (kind == Goal::Ratio ? ratio() : ours) <= goal;
}

Report::Report() {
    printLine(QStringLiteral("scenario"), QStringLiteral("book"),
              {QStringLiteral("ours"), QStringLiteral("bare"), QStringLiteral("ratio"),
               QStringLiteral("goal"), QStringLiteral("ok")});
}

void Report::add(const Result &result) {
    const QString verdict = result.kind == Goal::None ? QString()
                            : result.reached()        ? QStringLiteral("ok")
                                                      : QStringLiteral("MISSED");
    printLine(result.scenario, result.book,
              {number(result.ours), number(result.bare), number(result.ratio()), goalText(result), verdict});
    m_results.push_back(result);
}

bool Report::allReached() const {
    return std::all_of(m_results.begin(), m_results.end(),
                       [](const Result &result) { return result.reached(); });
}

void Report::writeJson(const QString &path) const {
    QJsonArray rows;
    for (const Result &result : m_results) {
        rows.append(toJson(result));
    }
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(QJsonDocument(rows).toJson()) < 0) {
        throw std::runtime_error(file.errorString().toStdString());
    }
}

} // namespace bench
