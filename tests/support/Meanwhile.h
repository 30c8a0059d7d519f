#pragma once

#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QListView>
#include <QTimer>
#include <QWidget>

#include <memory>

/// Does something, again and again, until it says that it is done: what the user does while a modal window is open.
template <class Step>
std::unique_ptr<QTimer> meanwhile(Step step) {
    auto timer = std::make_unique<QTimer>();
    QObject::connect(timer.get(), &QTimer::timeout, timer.get(), [step, &timer = *timer] {
        timer.stop(); // the step may let events in
        if (!step()) {
            timer.start();
        }
    });
    timer->start(10);
    return timer;
}

/// What the user does in a modal window of that class once it is open; true from the function ends it.
template <class Window, class Function>
std::unique_ptr<QTimer> in(Function act) {
    return meanwhile([act] {
        auto *window = qobject_cast<Window *>(QApplication::activeModalWidget());
        return window != nullptr && act(*window);
    });
}

/// Gives a file dialog a file, or cancels it. By its field: selectFile() leaves that alone while it has the focus. In a
/// window without the keyboard, a selected row goes before what the field holds.
inline void chooseIn(QFileDialog &dialog, const QString &file) {
    if (file.isEmpty()) {
        dialog.reject();
        return;
    }
    dialog.findChild<QListView *>(QStringLiteral("listView"))->clearSelection();
    dialog.findChild<QLineEdit *>(QStringLiteral("fileNameEdit"))->setText(file);
    static_cast<QDialog &>(dialog).accept();
}
