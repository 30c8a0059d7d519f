// The import through the real browser: pages of the program's folder and of the net, and what pages may not do.
#include "LivreEssai.h"
#include "Reponse.h"

#include "platform/webview/Engine.h"
#include "platform/webview/LoadEngine.h"
#include "webimport/PageAncienne.h"
#include "webimport/facile/Facile.h"

#include <QTcpServer>
#include <QTcpSocket>
#include <QUrl>

#include <unistd.h>

#include <array>
#include <filesystem>
#include <optional>

using webimport::facile::Facile;
using namespace platform::webview;

namespace {

constexpr int kPatience = 30000; // ms

QByteArray page(const QByteArray &texte) {
    return "HTTP/1.1 200 OK\r\nContent-Length: " + QByteArray::number(texte.size()) + "\r\n\r\n" + texte;
}

/// A server that answers each request with what a function makes of its path.
class Serveur : public QTcpServer {
public:
    explicit Serveur(std::function<QByteArray(const QByteArray &chemin)> reponse)
        : m_reponse(std::move(reponse)) {
        listen(QHostAddress::LocalHost);
        connect(this, &QTcpServer::newConnection, this, [this] {
            QTcpSocket *client = nextPendingConnection();
            connect(client, &QTcpSocket::readyRead, client, [this, client] {
                const QList<QByteArray> mots = client->readLine().split(' ');
                client->readAll();
                client->write(m_reponse(mots.value(1)));
                client->disconnectFromHost();
            });
        });
    }

    QUrl adresse(const QString &chemin) const {
        return QUrl(u"http://127.0.0.1:%1/%2"_qs.arg(serverPort()).arg(chemin));
    }

private:
    std::function<QByteArray(const QByteArray &)> m_reponse;
};

/// What is read of a page of the demonstration site: rows of ingredients; times, dish type, cost and difficulty. No group
/// has the number 99.
struct Recette {
    QStringView page;
    int groupe = 0, lignes = 0;
    QStringView champs; ///< with "|" between two
};

constexpr std::array kSite{
    Recette{u"chevreuil-airelles.htm", 16, 10,
            u"40 min,la veille : 15 min|1 h. 10|Gibiers|Très Cher|Très Difficile"},
    Recette{u"magret-cerises.htm", 99, 7,
            u"20 min|15 min.,et 5 min. de repos|Magret de canard aux cerises|Cher|Difficile"},
    Recette{u"punch-jardin.htm", 54, 8, u"15 min||Cocktails & Alcools|Moyen|Facile"},
    Recette{u"vacherin-fraises.htm", 99, 7,
            u"1 h 30,et une nuit au froid|2 h., four très doux|Desserts|Cher|Très Difficile"},
};

} // namespace

class TestNavigateur : public QObject {
    Q_OBJECT

private:
    bool attendre(const QString &fin) {
        return QTest::qWaitFor(
            [&] { return m_fenetre->Status.Caption() == u"Terminé"_qs && adresse().endsWith(fin); },
            kPatience);
    }

    /// Whether an action leads to a page.
    template <class Action>
    bool mene(Action action, const QString &fin) {
        m_fenetre->Status.SetCaption({});
        action();
        return attendre(fin);
    }

    bool aller(const QUrl &adresse) {
        return mene([&] { m_fenetre->Navigateur->navigate(adresse); }, adresse.toString().section(u'/', -1));
    }

    QString adresse() const { return m_fenetre->Navigateur->address().toString(); }

    QUrl locale(const QString &nom) const { return QUrl::fromLocalFile(m_livre->path(nom)); }

    /// The text that a script gives.
    QString executer(const QString &script) {
        std::optional<QString> texte;
        m_fenetre->Navigateur->runScript(script, [&texte](const std::optional<QString> &resultat) {
            texte = resultat.value_or(QString());
        });
        return QTest::qWaitFor([&texte] { return texte.has_value(); }, kPatience) ? *texte : QString();
    }

    /// Reads a recipe, and gives its fields with a bar between two.
    QStringList importer(const QUrl &recette) {
        if (!aller(recette) ||
            !QTest::qWaitFor([this] { return m_fenetre->Analyse.isVisible(); }, kPatience)) {
            return {};
        }
        m_fenetre->Analyse.click();
        QStringList champs{m_fenetre->TitreRecette.Text(), m_fenetre->calorie.Caption(),
                           m_fenetre->DReal.Text()};
        for (const int index : {3, 5, 0, 1, 2, 4}) {
            champs += m_fenetre->Liste(index).Text();
        }
        for (int index = 0; index < m_fenetre->Ingre.Count(); ++index) {
            champs +=
                m_fenetre->Qte(index).Text() + m_fenetre->Qte2(index).Text() + m_fenetre->Ingre(index).Text();
        }
        return champs << m_fenetre->Saisie(0).Text() << m_fenetre->Saisie(1).Text();
    }

    /// Presses Creer, with the cooking time that one of the pages lacks, and gives what it says.
    QString creer() {
        m_fenetre->Liste(3).SetText(u"30 min"_qs);
        Reponse reponse(u"OK"_qs);
        m_fenetre->Creer.click();
        return reponse.question();
    }

    Engine *m_moteur = nullptr;
    std::unique_ptr<LivreEssai> m_livre;
    std::unique_ptr<browser::Frmmain> m_principale;
    std::unique_ptr<Facile> m_fenetre;

private Q_SLOTS:

    void initTestCase() {
        if (geteuid() == 0) { // for whom the browser cannot lock its processes in
            qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
        }
        QVERIFY_THROWS_EXCEPTION(WebViewError, loadEngine(u"/nowhere/moteur-web.so"_qs));
        m_moteur = &loadEngine(QStringLiteral(SAVOREL_MOTEUR));
    }

    void init() {
        m_livre = std::make_unique<LivreEssai>();
        std::filesystem::copy(SAVOREL_SITE, m_livre->path(u"facile"_qs).toStdString(),
                              std::filesystem::copy_options::recursive);
        m_principale = std::make_unique<browser::Frmmain>();
        m_fenetre = std::make_unique<Facile>(*m_principale, *m_moteur);
        m_fenetre->show();
        QVERIFY(attendre(u"facile.htm"_qs));
    }

    void cleanup() { m_fenetre.reset(); }

    /// From the program's folder into the book, and the same from the net.
    void demonstrationSite() {
        QList<QStringList> lues;
        for (const Recette &recette : kSite) {
            QUrl fichier = locale(u"facile/"_qs + recette.page);
            fichier.setQuery(u"recette=1&groupid=%1"_qs.arg(recette.groupe));
            lues += importer(fichier);
            QCOMPARE(lues.last().mid(2, 5), recette.champs.toString().split(u'|'));
            QCOMPARE(m_fenetre->Ingre.Count(), recette.lignes);
            QCOMPARE(creer(), u"Création réussie ! "_qs);
        }
        const Serveur serveur([this](const QByteArray &chemin) {
            return page(
                contentOf(m_livre->path(u"facile"_qs + QString::fromLatin1(chemin).section(u'?', 0, 0))));
        });
        auto livre = store::OuvrirLivre();
        auto recettes = livre.OpenRecordset(u"SELECT * From Cocktails order by Numero"_qs);
        for (std::size_t i = 0; i < kSite.size(); ++i, recettes.MoveNext()) {
            if (i % 2 == 0) { // each load takes seconds with sanitizers
                const QString page = u"%1?recette=1&groupid=%2"_qs.arg(kSite[i].page).arg(kSite[i].groupe);
                QCOMPARE(importer(serveur.adresse(page)), lues[qsizetype(i)]);
            }
            QCOMPARE(recettes.Fields(u"Recette").Text(), lues[qsizetype(i)].first());
        }
    }

    void rulesOfTheOldForm() {
        QVERIFY(QFile::copy(QStringLiteral(SAVOREL_PAGES "/regles.html"),
                            m_livre->path(u"facile/regles.htm"_qs)));
        QVERIFY(aller(locale(u"facile/regles.htm"_qs)));
        const QString script = webimport::ScriptPageAncienne();
        QCOMPARE(executer(script + u"(document.documentElement)"),
                 QString::fromUtf8(contentOf(QStringLiteral(SAVOREL_PAGES "/regles.txt")))
                     .replace(u"\n"_qs, u"\r\n"_qs));
    }

    void pagesStayInTheViewAndInTheFolder() {
        executer(u"document.body.innerHTML = "
                 "'<a target=_blank href=index.htm style=\"position: fixed; inset: 0\">x</a>'"_qs);
        QTest::qWait(200); // for its layout
        QWidget *page = m_fenetre->Navigateur->widget().focusProxy();
        QVERIFY2(mene([page] { QTest::mouseClick(page, Qt::LeftButton); }, u"index.htm"_qs),
                 qPrintable(adresse()));
        m_fenetre->Navigateur->navigate(locale(u"../../../../../../etc/hostname"_qs));
        executer(u"location.href = 'file:///etc/hostname'"_qs);
        executer(u"window.open('facile.htm')"_qs); // nobody clicked
        QTest::qWait(500);
        QVERIFY2(adresse().endsWith(u"index.htm"_qs), qPrintable(adresse()));
        QVERIFY(mene([this] { m_fenetre->Navi(0).click(); }, u"facile.htm"_qs));
        QTRY_VERIFY(m_fenetre->Navi(1).isEnabled());
    }

    /// Also to a page of the net that was reached from a file.
    void busyPageLetsTheUserGo() {
        const Serveur serveur([](const QByteArray &chemin) {
            return page(chemin == "/occupee"
                            ? "<script>onload = () => setTimeout(() => { for (;;); }, 100)</script>"
                            : "<p>calme</p>");
        });
        const QString calme = u"location.href = '%1'"_qs.arg(serveur.adresse(u"calme"_qs).toString());
        QVERIFY(mene([&] { executer(calme); }, u"calme"_qs));
        QVERIFY(aller(serveur.adresse(u"occupee"_qs)));
        QTest::qWait(500);
        QVERIFY2(mene([this] { m_fenetre->Navi(0).click(); }, u"calme"_qs), qPrintable(adresse()));
        QCOMPARE(executer(u"document.body.textContent"_qs), u"calme"_qs);
    }

    void pictureIsFetchedWithinLimits() {
        const QByteArray trop(33 * 1024 * 1024, 'x');
        const Serveur serveur([&trop](const QByteArray &chemin) -> QByteArray {
            if (chemin == "/ici") {
                return "HTTP/1.1 302 Found\r\nLocation: /la\r\nContent-Length: 0\r\n\r\n";
            }
            if (chemin == "/trop") {
                return "HTTP/1.1 200 OK\r\n\r\n" + trop;
            }
            return chemin == "/la" ? page("voir") : "HTTP/1.1 404 Non\r\nContent-Length: 4\r\n\r\nrien";
        });
        const auto chercher = [this](const QUrl &adresse) {
            return m_moteur->openUrl(adresse, m_livre->path({}));
        };
        QCOMPARE(chercher(serveur.adresse(u"ici"_qs)), std::optional(QByteArrayLiteral("voir")));
        QCOMPARE(chercher(serveur.adresse(u"trop"_qs)), std::nullopt);
        QCOMPARE(chercher(serveur.adresse(u"rien"_qs)), std::nullopt);
        QVERIFY(chercher(locale(u"facile/facile.htm"_qs)));
        QVERIFY(!chercher(QUrl(u"file:///etc/hostname"_qs)));
        QVERIFY(!chercher(QUrl()));
    }
};

QTEST_MAIN(TestNavigateur)
#include "TestNavigateur.moc"
