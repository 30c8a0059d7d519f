#pragma once

#include "Files.h"

#include <QTemporaryDir>

/// SANE confined to its simulated devices "test:0" and so on, by a configuration folder of the test's own.
class TestBackend {
public:
    TestBackend() {
        qputenv("SANE_CONFIG_DIR", m_folder.path().toUtf8());
        configure();
    }

    /// Takes effect for the next task of a Scanner.
    void configure(const QByteArray &settings = {}) {
        write(QStringLiteral("dll.conf"), "test\n");
        write(QStringLiteral("test.conf"), "number_of_devices 2\nmode Gray\ndepth 8\n"
                                           "resolution_min 1.0\nresolution_max 1200.0\n"
                                           "resolution_quant 1.0\nresolution 50.0\ntest-picture \"Grid\"\n"
                                           "geometry_min 0.0\ngeometry_max 200.0\ngeometry_quant 1.0\n"
                                           "tl_x 0.0\ntl_y 0.0\nbr_x 80.0\nbr_y 100.0\n" +
                                               settings);
    }

    /// From the next task on there is no driver at all.
    void withoutDevices() { write(QStringLiteral("dll.conf"), "\n"); }

private:
    void write(const QString &name, const QByteArray &content) {
        writeFile(m_folder.filePath(name), content);
    }

    QTemporaryDir m_folder;
};
