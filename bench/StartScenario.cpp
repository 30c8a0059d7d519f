#include "Measure.h"
#include "Scenarios.h"
#include "Start.h"

#include <QCoreApplication>
#include <QProcess>
#include <QStandardPaths>

#include <stdexcept>

namespace bench {

namespace {

constexpr int kTurns = 25;
constexpr int kWaitForServer = 10'000; // ms
constexpr double kTimeGoal = 1.5;
constexpr double kMemoryGoal = 80; // MiB

/// Starts this program again in one of its two shapes. Gives the most memory it had, in MiB.
double startOnce(const GeneratedBook &book, const char *which, const QProcessEnvironment &environment) {
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QCoreApplication::applicationFilePath(),
                  {QLatin1String(kStartCommand), QLatin1String(which), book.folder});
    if (!process.waitForFinished() || process.exitCode() != 0) {
        throw std::runtime_error("the start of the program failed");
    }
    return process.readAllStandardOutput().trimmed().toDouble() / 1024;
}

void measureOn(const QString &display, const QProcessEnvironment &environment, const GeneratedBook &book,
               Report &report) {
    std::vector<double> memory;
    double bareMemory = 0;
    const Times times = alternate([&] { memory.push_back(startOnce(book, kOurs, environment)); },
                                  [&] { bareMemory = startOnce(book, kBare, environment); }, kTurns);
    const QString where = QString::number(book.recipes) + QStringLiteral(", ") + display;
    report.add({QStringLiteral("process start to painted list"), where, times.ours, times.bare, Goal::Ratio,
                kTimeGoal});
    const Times bookless = alternate([&] { startOnce(book, kOurs, environment); },
                                     [&] { startOnce(book, kBookless, environment); }, kTurns);
    report.add({QStringLiteral("the same, against no book at all"), where, bookless.ours, bookless.bare});
    report.add({QStringLiteral("peak resident memory, MiB"), where, median(memory), bareMemory,
                Goal::Mebibytes, kMemoryGoal});
}

/// A virtual X display for as long as the object lives.
class VirtualDisplay {
public:
    VirtualDisplay() {
        m_server.start(QStringLiteral("Xvfb"),
                       {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"),
                        QStringLiteral("0"), QStringLiteral("1280x1024x24"),
                        // A display of a user has other clients, and does not restart after each.
                        QStringLiteral("-noreset")});
        m_server.waitForReadyRead(kWaitForServer);
        m_display = u':' + QString::fromLatin1(m_server.readLine().trimmed());
    }

    VirtualDisplay(const VirtualDisplay &) = delete;
    VirtualDisplay &operator=(const VirtualDisplay &) = delete;

    ~VirtualDisplay() {
        m_server.terminate();
        m_server.waitForFinished();
    }

    const QString &name() const { return m_display; }

private:
    QProcess m_server;
    QString m_display;
};

} // namespace

void measureStart(const GeneratedBook &book, Report &report) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    measureOn(QStringLiteral("offscreen"), environment, book, report);
    if (QStandardPaths::findExecutable(QStringLiteral("Xvfb")).isEmpty()) {
        return;
    }
    const VirtualDisplay display;
    environment.insert(QStringLiteral("DISPLAY"), display.name());
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
    measureOn(QStringLiteral("xcb"), environment, book, report);
}

} // namespace bench
