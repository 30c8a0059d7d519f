#include "Files.h"

#include "platform/settings/Conversion.h"
#include "platform/settings/Settings.h"

#include <QCoreApplication>
#include <QDir>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

#include <array>
#include <cmath>
#include <memory>

using namespace platform::settings;

namespace {

const QString kApplication = u"Essai"_qs;

void keepSettingsIn(const QString &folder) {
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder);
}

} // namespace

class TestSettings : public QObject {
    Q_OBJECT

private:
    QString file() const { return m_folder->filePath(u"Essai/Essai.ini"_qs); }

    static QString tris() { return GetSetting(kApplication, u"Settings"_qs, u"Tris"_qs, u"0"_qs); }

    static void save(const QString &text) { SaveSetting(kApplication, u"Settings"_qs, u"Tris"_qs, text); }

    std::unique_ptr<QTemporaryDir> m_folder;

private Q_SLOTS:

    void init() {
        m_folder = std::make_unique<QTemporaryDir>();
        keepSettingsIn(m_folder->path());
    }

    void textComesBackAsItWas() {
        for (const QString &text :
             {u"Crème brûlée à l'œuf Ω"_qs, u"sel, poivre"_qs, u"100%20 %n"_qs, u"a;b"_qs, u"  bord  "_qs,
              u"\"C:\\photos\\x\" = /tmp"_qs, u"un\r\ndeux"_qs, u"@Invalid()"_qs}) {
            init();
            save(text);
            QCOMPARE(tris(), text);
            // Under another path it is read from the disk and not from what the process remembers.
            const QString elsewhere = m_folder->filePath(u"ailleurs"_qs);
            QVERIFY(QDir(m_folder->path()).mkpath(elsewhere + u"/Essai"));
            QVERIFY(QFile::rename(file(), elsewhere + u"/Essai/Essai.ini"));
            keepSettingsIn(elsewhere);
            QCOMPARE(tris(), text);
        }
    }

    void theFileIsReadAndWrittenByHandToo() {
        save(u"1"_qs);
        SaveSetting(kApplication, u"Patch"_qs, u"Mode"_qs, u"2"_qs);
        QCOMPARE(contentOf(file()), "[Patch]\nMode=2\n\n[Settings]\nTris=1\n");

        init(); // a comma must not make a list
        QVERIFY(QDir(m_folder->path()).mkdir(kApplication));
        writeFile(file(), "[Settings]\nTris=12,5\n");
        QCOMPARE(tris(), u"12,5"_qs);
    }

    void absentKeysAndAnUnwritableStore() {
        QCOMPARE(tris(), u"0"_qs);
        QVERIFY2(!QFile::exists(file()), "reading must not write");
        save({});
        QCOMPARE(tris(), QString());
        // A file where the folder should be: refuses also the administrator.
        keepSettingsIn(writeFile(m_folder->filePath(u"obstacle"_qs), {}));
        QVERIFY_THROWS_EXCEPTION(SettingsError, save(u"1"_qs));
        QCOMPARE(tris(), u"0"_qs);
    }

    void numbersFromTexts() {
        const auto integers =
            std::to_array<std::pair<QString, int>>({{u" 7 "_qs, 7},
                                                    {u"3,5"_qs, 4}, // a tie goes to the even one
                                                    {u"2.5"_qs, 2},
                                                    {u"32767,4"_qs, 32767},
                                                    {u"-32768"_qs, -32768}});
        for (const auto &[text, number] : integers) {
            QCOMPARE(int(ToInteger(text)), number);
        }
        for (const QString &text : u"abc||5x|1 2|nan|inf|99999|32767,5|-32769"_qs.split(u'|')) {
            QVERIFY_THROWS_EXCEPTION(ConversionError, ToInteger(text));
        }
        for (const float number : {0.1F, std::nextafter(1.0F, 2.0F), -3727.5F, 1.5e30F}) {
            QVERIFY(ToSingle(ToText(number)) == number);
            QVERIFY(!ToText(number).contains(u','));
        }
        QVERIFY_THROWS_EXCEPTION(ConversionError, ToSingle(u"1e39"_qs));
    }

    void truthsAndTexts() {
        for (const QString &text : u"Vrai|vrai|TRUE| True |-1|0,5"_qs.split(u'|')) {
            QVERIFY2(ToBoolean(text), qPrintable(text));
        }
        for (const QString &text : u"Faux|false|0|0,0"_qs.split(u'|')) {
            QVERIFY2(!ToBoolean(text), qPrintable(text));
        }
        for (const QString &text : u"|oui|vraiment"_qs.split(u'|')) {
            QVERIFY_THROWS_EXCEPTION(ConversionError, ToBoolean(text));
        }
        QCOMPARE(ToText(true), u"Vrai"_qs); // the numbers being English
    }
};

int main(int argc, char *argv[]) {
    // Both are settled once for a process.
    qputenv("LC_ALL", "");
    qputenv("LANG", "fr_FR.UTF-8");
    qputenv("LC_NUMERIC", "en_US.UTF-8");
    const QCoreApplication application(argc, argv);
    TestSettings test;
    return QTest::qExec(&test, argc, argv);
}

#include "TestSettings.moc"
