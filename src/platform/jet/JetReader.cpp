#include "JetReader.h"

#include "RecordParser.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QFileInfo>
#include <QProcess>

#include <algorithm>

namespace platform::jet {

namespace {

/// The texts that a reader can give of a file are longer than the file: a byte of compact text becomes two, a bit
/// for Null a byte. Beyond this factor it must be going in circles.
constexpr qint64 kMaxGrowth = 32;
constexpr qint64 kMinimalBound = 1 << 20;

/// Between two calls of progress().
constexpr std::chrono::milliseconds kTick{50};

constexpr int kLongestFailure = 500;

/// The reading program, which does not outlive this object.
class ReaderProcess {
public:
    ReaderProcess(const QString &program, const QStringList &arguments) {
        m_process.setStandardInputFile(QProcess::nullDevice());
        m_process.setStandardErrorFile(QProcess::nullDevice());
        m_process.start(program, arguments, QIODevice::ReadOnly);
        if (!m_process.waitForStarted()) {
            throw JetError(u"Le lecteur des anciens livres ne peut pas être lancé : " + program);
        }
    }

    ReaderProcess(const ReaderProcess &) = delete;
    ReaderProcess &operator=(const ReaderProcess &) = delete;

    ~ReaderProcess() {
        if (m_process.state() != QProcess::NotRunning) {
            m_process.kill();
            m_process.waitForFinished();
        }
    }

    QByteArray read(std::chrono::milliseconds wait) {
        m_process.waitForReadyRead(int(wait.count()));
        return m_process.readAllStandardOutput();
    }

    bool isRunning() const { return m_process.state() != QProcess::NotRunning; }

    bool crashed() const { return m_process.exitStatus() == QProcess::CrashExit; }

    int exitCode() const { return m_process.exitCode(); }

private:
    QProcess m_process;
};

void requireWhole(const RecordParser &parser, const ReaderProcess &reader) {
    if (!parser.failure().isEmpty()) {
        throw JetError(parser.failure().left(kLongestFailure));
    }
    if (reader.crashed()) {
        throw JetError(
            QStringLiteral("La lecture s'est arrêtée brutalement : le fichier est sans doute endommagé."));
    }
    if (!parser.ended() || reader.exitCode() != kReadWhole) {
        throw JetError(QStringLiteral("La lecture s'est arrêtée avant la fin du fichier."));
    }
}

} // namespace

bool isJetFile(const QString &path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && file.read(19).mid(4) == "Standard Jet DB";
}

void readJet(const QString &program, const QString &file, const QStringList &tables, JetSink &sink,
             std::chrono::milliseconds timeLimit) {
    const QDeadlineTimer deadline(timeLimit);
    ReaderProcess reader(program, QStringList{file} + tables);
    RecordParser parser(sink, std::max(kMinimalBound, kMaxGrowth * QFileInfo(file).size()));
    QDeadlineTimer nextProgress(0);
    for (bool more = true; more;) {
        const bool running = reader.isRunning();
        const QByteArray bytes = reader.read(kTick);
        parser.append(bytes);
        more = running || !bytes.isEmpty();
        if (!more || nextProgress.hasExpired()) {
            sink.progress(parser.rows(), parser.total());
            nextProgress.setRemainingTime(kTick);
        }
        if (more && deadline.hasExpired()) {
            throw JetError(
                QStringLiteral("La lecture de l'ancien livre a pris trop de temps ; elle est abandonnée."));
        }
    }
    requireWhole(parser, reader);
}

} // namespace platform::jet
