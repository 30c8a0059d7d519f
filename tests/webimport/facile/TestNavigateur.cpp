// The import through the real browser: pages of the program's folder, and what pages may not do.
#include "LivreEssai.h"
#include "Reponse.h"

#include "platform/webview/Engine.h"
#include "platform/webview/LoadEngine.h"
#include "webimport/facile/Facile.h"

#include <QTcpServer>
#include <QTcpSocket>
#include <QUrl>

#include <optional>

using webimport::facile::Facile;
using namespace platform::webview;

namespace {

constexpr int kPatience = 30000; // ms

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

} // namespace

class TestNavigateur : public QObject {
    Q_OBJECT

private:
    void ecrire(const QString &nom, const QByteArray &texte) {
        QFile fichier(m_livre->path(nom));
        QVERIFY(fichier.open(QIODevice::WriteOnly));
        fichier.write(texte);
    }

    bool attendre(const QString &page) {
        return QTest::qWaitFor(
            [&] { return m_fenetre->Status.Caption() == u"Terminé"_qs && adresse().endsWith(page); },
            kPatience);
    }

    QString adresse() const { return m_fenetre->Navigateur->address().toString(); }

    void aller(const QString &page) {
        m_fenetre->Navigateur->navigate(QUrl::fromLocalFile(m_livre->path(page)));
    }

    void executer(const QString &script) {
        m_fenetre->Navigateur->runScript(script, [](const std::optional<QString> &) {});
    }

    Engine *m_moteur = nullptr;
    std::unique_ptr<LivreEssai> m_livre;
    std::unique_ptr<browser::Frmmain> m_principale;
    std::unique_ptr<Facile> m_fenetre;

private Q_SLOTS:

    void initTestCase() {
        QVERIFY_EXCEPTION_THROWN(loadEngine(u"/nowhere/moteur-web.so"_qs), WebViewError);
        try {
            m_moteur = &loadEngine(QStringLiteral(SAVOREL_MOTEUR));
        } catch (const WebViewError &obstacle) {
            QSKIP(obstacle.what());
        }
    }

    void init() {
        m_livre = std::make_unique<LivreEssai>();
        QVERIFY(QDir(m_livre->path({})).mkpath(u"facile/photos"_qs));
        ecrire(u"facile/facile.htm"_qs, "<a id=l target=_blank href=autre.htm>x</a>");
        ecrire(u"facile/autre.htm"_qs, "<p>autre</p>");
        m_principale = std::make_unique<browser::Frmmain>();
        m_fenetre = std::make_unique<Facile>(*m_principale, *m_moteur);
        m_fenetre->show();
        QVERIFY(attendre(u"facile.htm"_qs));
    }

    void cleanup() { m_fenetre.reset(); }

    void pageGoesThroughTheBrowserIntoTheBook() {
        QImage image(60, 40, QImage::Format_RGB32);
        image.fill(Qt::darkRed);
        QVERIFY(image.save(m_livre->path(u"facile/photos/gratin-poireaux.jpg"_qs)));
        QFile page(QStringLiteral(SAVOREL_PAGES "/commentee.html"));
        QVERIFY(page.open(QIODevice::ReadOnly));
        ecrire(u"facile/gratin.htm"_qs, QString::fromUtf8(page.readAll()).toLatin1());
        QVERIFY(!m_fenetre->Analyse.isVisible());
        aller(u"facile/gratin.htm"_qs);
        QVERIFY(QTest::qWaitFor([this] { return m_fenetre->Analyse.isVisible(); }, kPatience));

        m_fenetre->Analyse.click();
        QVERIFY(m_fenetre->Fond.isVisible());
        QCOMPARE(m_fenetre->TitreRecette.Text(), u"Gratin de poireaux"_qs);
        QCOMPARE(m_fenetre->calorie.Caption(), u"au vieux comté"_qs);
        QCOMPARE(m_fenetre->Liste(1).Text(), u"Facile"_qs);
        QCOMPARE(m_fenetre->Qte2(2).Text() + m_fenetre->Ingre(2).Text(), u"g de vieux comté râpé"_qs);
        QCOMPARE(m_fenetre->Photo.Picture().size(), QSize(60, 40));

        Reponse reponse(u"OK"_qs);
        m_fenetre->Creer.click();
        QCOMPARE(reponse.question(), u"Création réussie ! "_qs);
        QCOMPARE(LivreEssai::text(u"SELECT Numero, Recette From Cocktails"_qs), u"Gratin de poireaux"_qs);
        auto livre = store::OuvrirLivre();
        QCOMPARE(livre.OpenRecordset(u"SELECT * From Ingre"_qs).RecordCount(), m_fenetre->Ingre.Count());
        QVERIFY(QFile::exists(m_livre->path(u"photos/Gratin de poireaux.jpg"_qs)));
    }

    void pagesStayInTheViewAndInTheFolder() {
        QTest::mouseClick(m_fenetre->Navigateur->widget().focusProxy(), Qt::LeftButton, {}, QPoint(12, 16));
        QVERIFY2(attendre(u"autre.htm"_qs), qPrintable(adresse()));
        QTRY_VERIFY(m_fenetre->Navi(0).isEnabled());
        aller(u"../../../../../../etc/hostname"_qs);
        executer(u"location.href = 'file:///etc/hostname'"_qs);
        executer(u"window.open('facile.htm')"_qs); // nobody clicked
        QTest::qWait(500);
        QVERIFY2(adresse().endsWith(u"autre.htm"_qs), qPrintable(adresse()));
        m_fenetre->Navi(0).click();
        QVERIFY(attendre(u"facile.htm"_qs));
        QTRY_VERIFY(m_fenetre->Navi(1).isEnabled());
    }

    void pictureIsFetchedWithinLimits() {
        const QByteArray trop(33 * 1024 * 1024, 'x');
        Serveur serveur([&trop](const QByteArray &chemin) -> QByteArray {
            if (chemin == "/ici") {
                return "HTTP/1.1 302 Found\r\nLocation: /la\r\nContent-Length: 0\r\n\r\n";
            }
            if (chemin == "/la") {
                return "HTTP/1.1 200 OK\r\nContent-Length: 4\r\n\r\nvoir";
            }
            if (chemin == "/trop") {
                return "HTTP/1.1 200 OK\r\n\r\n" + trop;
            }
            return "HTTP/1.1 404 Non\r\nContent-Length: 4\r\n\r\nrien";
        });
        const auto chercher = [this](const QUrl &adresse) {
            return m_moteur->openUrl(adresse, m_livre->path({}));
        };
        QCOMPARE(chercher(serveur.adresse(u"ici"_qs)), std::optional(QByteArrayLiteral("voir")));
        QCOMPARE(chercher(serveur.adresse(u"trop"_qs)), std::nullopt);
        QCOMPARE(chercher(serveur.adresse(u"rien"_qs)), std::nullopt);
        QVERIFY(chercher(QUrl::fromLocalFile(m_livre->path(u"facile/autre.htm"_qs))));
        QVERIFY(!chercher(QUrl(u"file:///etc/hostname"_qs)));
        QVERIFY(!chercher(QUrl()));
    }
};

QTEST_MAIN(TestNavigateur)
#include "TestNavigateur.moc"
