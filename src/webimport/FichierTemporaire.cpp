#include "FichierTemporaire.h"

#include "ErreurExecution.h"

#include "platform/codepages/CodePages.h"
#include "platform/files/FileError.h"

#include <QFile>

#include <algorithm>
#include <array>
#include <cerrno>

namespace webimport {

namespace {

constexpr char kTypeTexte = 8;
constexpr int kPageDeCodes = 1252;
constexpr int kCaracteres = 256;

[[noreturn]] void Echouer(const QFile &fichier) {
    throw ErreurExecution(platform::files::FileError(fichier.fileName(), errno).what());
}

} // namespace

QByteArray EnregistrementDuTexte(const QString &texte) {
    const auto longueur = quint16(texte.size());
    QByteArray octets;
    octets.reserve(texte.size() + 4);
    octets += kTypeTexte;
    octets += '\0';
    octets += char(longueur & 0xFF);
    octets += char(longueur >> 8);
    for (const QChar c : texte) {
        octets += char(platform::codepages::encodeWestern(c.unicode()).value_or('?'));
    }
    return octets;
}

QString TexteDuFichier(const QByteArray &octets) {
    static const auto kTable = [] {
        std::array<QChar, kCaracteres> table;
        for (int i = 0; i < kCaracteres; ++i) {
            table[std::size_t(i)] = platform::codepages::decode(kPageDeCodes, quint8(i));
        }
        return table;
    }();
    QString texte(octets.size(), Qt::Uninitialized);
    std::transform(octets.begin(), octets.end(), texte.begin(), [](char c) { return kTable[quint8(c)]; });
    return texte;
}

void EcrireTexte(const QString &chemin, const QString &texte) {
    QFile fichier(chemin);
    const QByteArray octets = EnregistrementDuTexte(texte);
    if (!fichier.open(QIODevice::ReadWrite) || fichier.write(octets) != octets.size() || !fichier.flush()) {
        Echouer(fichier);
    }
}

QString LireTexte(const QString &chemin) {
    QFile fichier(chemin);
    if (!fichier.open(QIODevice::ReadOnly)) {
        Echouer(fichier);
    }
    return TexteDuFichier(fichier.readAll());
}

} // namespace webimport
