#include "Measure.h"
#include "Scenarios.h"

#include "webimport/FichierTemporaire.h"
#include "webimport/PageCommentee.h"
#include "webimport/PageDebutFin.h"

#include <QFile>

#include <stdexcept>

namespace bench {

namespace {

constexpr int kTurns = 25;
constexpr qsizetype kTypicalSize = 65'536;
constexpr qsizetype kLargeSize = 1'048'576;
constexpr int kTimesLarger = 4;
constexpr double kTypicalGoal = 10; // ms
constexpr double kLinearGoal = 1.5;

QString recipePage(const QString &name) {
    QFile page(QStringLiteral(SAVOREL_PAGES "/") + name);
    if (!page.open(QIODevice::ReadOnly)) {
        throw std::runtime_error(page.errorString().toStdString());
    }
    return QString::fromUtf8(page.readAll()).replace(u'\n', QStringLiteral("\r\n"));
}

/// The recipe below the menus and lists of a site.
QString pageOfSize(const QString &recipe, qsizetype size) {
    const QString menu = QStringLiteral(
        "<TR><TD><A href=\"liste.asp?page=2&amp;groupid=18\">Nos légumes</A><IMG src=\"images/puce.gif\" "
        "border=0></TD></TR>\r\n");
    return menu.repeated((size - recipe.size()) / menu.size()) + recipe;
}

/// What the import does from the text in the browser to the fields, apart from the disk.
void analyse(const QString &captured) {
    const webimport::PageCapturee page{
        webimport::TexteDuFichier(webimport::EnregistrementDuTexte(captured)),
        QStringLiteral("http://www.latablededemain.example/r.asp?id=1&groupid=18"),
        {QStringLiteral("http://www.latablededemain.example"), QStringLiteral("latablededemain.example")}};
    if (webimport::EstPageDebutFin(captured)) {
        webimport::MemoireImport memory;
        webimport::ExtrairePageDebutFin(page, memory);
    } else {
        webimport::ExtrairePageCommentee(page, [](const QString & /*line*/) {});
    }
}

} // namespace

void measureImport(Report &report) {
    for (const QString &name : {QStringLiteral("commentee.html"), QStringLiteral("debut-fin.html")}) {
        const QString recipe = recipePage(name);
        const QString typical = pageOfSize(recipe, kTypicalSize);
        const QString large = pageOfSize(recipe, kLargeSize);
        const QString larger = pageOfSize(recipe, kTimesLarger * kLargeSize);
        const Times times = alternate([&] { analyse(larger); }, [&] { analyse(large); }, kTurns);
        std::vector<double> typicalTimes(kTurns);
        for (double &time : typicalTimes) {
            time = milliseconds([&] { analyse(typical); });
        }
        report.add({QStringLiteral("page of 64 KB analysed"), name, median(typicalTimes), 0,
                    Goal::Milliseconds, kTypicalGoal});
        report.add({QStringLiteral("page of 4 MB against 4 x 1 MB"), name, times.ours,
                    kTimesLarger * times.bare, Goal::Ratio, kLinearGoal});
    }
}

} // namespace bench
