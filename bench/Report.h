#pragma once

#include <QString>

#include <vector>

namespace bench {

/// What a goal limits: ours as a multiple of the bare value, or ours alone.
enum class Goal { Ratio, Milliseconds, Mebibytes, None };

struct Result {
    QString scenario;
    /// The book, and the display where it matters.
    QString book;
    double ours;
    /// 0 where there is nothing to compare with.
    double bare = 0;
    Goal kind = Goal::None;
    double goal = 0;

    double ratio() const { return bare > 0 ? ours / bare : 0; }

    bool reached() const;
};

/// Collects the results, and prints each as it comes.
class Report {
public:
    Report();

    void add(const Result &result);
    bool allReached() const;
    /// @throws std::runtime_error when the file cannot be written
    void writeJson(const QString &path) const;

private:
    std::vector<Result> m_results;
};

} // namespace bench
