#include "platform/settings/Conversion.h"
#include "platform/settings/Settings.h"

#include <QCoreApplication>
#include <QFile>
#include <QProcess>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <memory>

using namespace platform::settings;

namespace {

const QString kApplication = u"Essai"_qs;

/// Argument that makes this program say its words of truth and end.
const QString kSayTruth = u"--truth"_qs;

void keepSettingsIn(const QString &folder) {
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder);
}

} // namespace

class TestSettings : public QObject {
    Q_OBJECT

private:
    QString file() const { return m_folder->filePath(u"Essai/Essai.ini"_qs); }

    std::unique_ptr<QTemporaryDir> m_folder;

private Q_SLOTS:

    void init() {
        m_folder = std::make_unique<QTemporaryDir>();
        keepSettingsIn(m_folder->path());
    }

    void absentKeyGivesTheDefault() {
        QCOMPARE(GetSetting(kApplication, u"Settings"_qs, u"Tris"_qs, u"0"_qs), u"0"_qs);
        QCOMPARE(GetSetting(kApplication, u"Settings"_qs, u"Tris"_qs), QString());
        QVERIFY2(!QFile::exists(file()), "reading must not write");

        SaveSetting(kApplication, u"Settings"_qs, u"Tris"_qs, QString());
        QCOMPARE(GetSetting(kApplication, u"Settings"_qs, u"Tris"_qs, u"0"_qs), QString());
    }

    void textComesBackAsItWas_data() {
        QTest::addColumn<QString>("text");
        QTest::newRow("letters of other alphabets") << u"Crème brûlée à l'œuf Ω"_qs;
        QTest::newRow("comma, which would make a list") << u"sel, poivre"_qs;
        QTest::newRow("percent, which escapes in keys") << u"100%20 %n"_qs;
        QTest::newRow("semicolon, which begins a comment") << u"a;b"_qs;
        QTest::newRow("blanks at both ends") << u"  bord  "_qs;
        QTest::newRow("quotes and separators of paths") << u"\"C:\\photos\\x\" = /tmp"_qs;
        QTest::newRow("line ends") << u"un\r\ndeux"_qs;
        QTest::newRow("at sign, which marks types") << u"@Invalid()"_qs;
    }

    void textComesBackAsItWas() {
        QFETCH(QString, text);
        SaveSetting(kApplication, u"Settings"_qs, u"Clé 1"_qs, text);
        QCOMPARE(GetSetting(kApplication, u"Settings"_qs, u"Clé 1"_qs), text);

        // A copy under another path is read from the disk and not from what the process remembers.
        const QTemporaryDir elsewhere;
        QVERIFY(QDir(elsewhere.path()).mkdir(kApplication));
        QVERIFY(QFile::copy(file(), elsewhere.filePath(u"Essai/Essai.ini"_qs)));
        keepSettingsIn(elsewhere.path());
        QCOMPARE(GetSetting(kApplication, u"Settings"_qs, u"Clé 1"_qs), text);
    }

    void sectionsAndKeysStandInTheFileAsTheyAre() {
        SaveSetting(kApplication, u"Settings"_qs, u"Mode"_qs, u"1"_qs);
        SaveSetting(kApplication, u"Patch"_qs, u"Mode"_qs, u"2"_qs);
        QFile ini(file());
        QVERIFY(ini.open(QIODevice::ReadOnly));
        QCOMPARE(ini.readAll(), "[Patch]\nMode=2\n\n[Settings]\nMode=1\n");
    }

    void commaOfAFileChangedByHandStays() {
        QVERIFY(QDir(m_folder->path()).mkdir(kApplication));
        QFile ini(file());
        QVERIFY(ini.open(QIODevice::WriteOnly));
        ini.write("[Settings]\nMainTop=12,5\n");
        ini.close();
        QCOMPARE(GetSetting(kApplication, u"Settings"_qs, u"MainTop"_qs), u"12,5"_qs);
    }

    void unwritableStoreIsAnError() {
        // A file where the folder should be: refuses also the administrator.
        const QString obstacle = m_folder->filePath(u"obstacle"_qs);
        QFile blocked(obstacle);
        QVERIFY(blocked.open(QIODevice::WriteOnly));
        keepSettingsIn(obstacle);
        QVERIFY_THROWS_EXCEPTION(SettingsError,
                                 SaveSetting(kApplication, u"Settings"_qs, u"Tris"_qs, u"1"_qs));
        QCOMPARE(GetSetting(kApplication, u"Absent"_qs, u"Tris"_qs, u"0"_qs), u"0"_qs);
    }

    void integersFromTexts_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("number");
        QTest::newRow("blanks around") << u" 7 "_qs << 7;
        QTest::newRow("negative") << u"-12"_qs << -12;
        QTest::newRow("comma, tie up to even") << u"3,5"_qs << 4;
        QTest::newRow("point, tie down to even") << u"2.5"_qs << 2;
        QTest::newRow("largest after rounding") << u"32767,4"_qs << 32767;
        QTest::newRow("smallest") << u"-32768"_qs << -32768;
    }

    void integersFromTexts() {
        QFETCH(QString, text);
        QTEST(static_cast<int>(ToInteger(text)), "number");
        QTEST(ToLong(text), "number");
        QCOMPARE(ToLong(u"99999"_qs), 99999);
    }

    void textsThatAreNoIntegers() {
        for (const char *text : {"abc", "", " ", "5x", "1 2", "nan", "inf", "99999", "32767,5", "-32769"}) {
            QVERIFY_THROWS_EXCEPTION(ConversionError, ToInteger(QString::fromLatin1(text)));
        }
        QVERIFY_THROWS_EXCEPTION(ConversionError, ToLong(u"2147483648"_qs));
    }

    void floatsSurviveAsText() {
        for (const float number : {0.1F, std::nextafter(1.0F, 2.0F), -3727.5F, 1.5e30F}) {
            QVERIFY(ToSingle(ToText(number)) == number);
            QVERIFY(!ToText(number).contains(u','));
        }
        QVERIFY_THROWS_EXCEPTION(ConversionError, ToSingle(u"1e39"_qs));
    }

    void truthsFromTexts() {
        for (const char *text : {"Vrai", "vrai", "TRUE", " True ", "-1", "0,5"}) {
            QVERIFY2(ToBoolean(QString::fromLatin1(text)), text);
        }
        for (const char *text : {"Faux", "false", "0", "0,0"}) {
            QVERIFY2(!ToBoolean(QString::fromLatin1(text)), text);
        }
        for (const char *text : {"", "oui", "vraiment"}) {
            QVERIFY_THROWS_EXCEPTION(ConversionError, ToBoolean(QString::fromLatin1(text)));
        }
    }

    void wordsOfTruthByLanguage_data() {
        QTest::addColumn<QStringList>("environment");
        QTest::addColumn<QByteArray>("words");
        QTest::newRow("French") << QStringList{u"LC_ALL=fr_FR.UTF-8"_qs} << QByteArray("Vrai Faux");
        QTest::newRow("of Canada") << QStringList{u"LANG=fr_CA"_qs} << QByteArray("Vrai Faux");
        QTest::newRow("French with other numbers")
            << QStringList{u"LANG=fr_FR.UTF-8"_qs, u"LC_NUMERIC=en_US.UTF-8"_qs} << QByteArray("Vrai Faux");
        QTest::newRow("German") << QStringList{u"LANG=de_DE.UTF-8"_qs} << QByteArray("True False");
        QTest::newRow("none") << QStringList{u"LANG=C"_qs} << QByteArray("True False");
    }

    void wordsOfTruthByLanguage() {
        QFETCH(QStringList, environment);
        // The language is settled once for a process.
        QProcess other;
        other.setEnvironment(environment);
        other.start(QCoreApplication::applicationFilePath(), {kSayTruth});
        QVERIFY(other.waitForFinished());
        QTEST(other.readAllStandardOutput(), "words");
    }
};

int main(int argc, char *argv[]) {
    const QCoreApplication application(argc, argv);
    if (QCoreApplication::arguments().value(1) == kSayTruth) {
        QFile out;
        return out.open(stdout, QIODevice::WriteOnly) &&
                       out.write(QString(ToText(true) + u' ' + ToText(false)).toUtf8()) > 0
                   ? EXIT_SUCCESS
                   : EXIT_FAILURE;
    }
    TestSettings test;
    return QTest::qExec(&test, argc, argv);
}

#include "TestSettings.moc"
