#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QInputDialog>
#include <QMessageBox>
#include <QTimer>

/// Answers the next message box or input box of the program, once it stands, and keeps what it asked.
class Reponse {
public:
    /// The caption of the button to press; for an input box also the text to type first.
    explicit Reponse(const QString &button, const QString &typed = {}) : m_button(button), m_typed(typed) {
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { look(); });
        m_timer.start(5);
    }

    /// Whether a box came.
    bool asked() const { return !m_question.isNull(); }

    QString question() const { return m_question; }

    QString title() const { return m_title; }

private:
    void look() {
        QWidget *box = QApplication::activeModalWidget();
        if (box == nullptr) {
            return;
        }
        m_timer.stop();
        m_title = box->windowTitle();
        if (auto *message = qobject_cast<QMessageBox *>(box)) {
            m_question = message->text();
        } else if (auto *input = qobject_cast<QInputDialog *>(box)) {
            m_question = input->labelText();
            input->setTextValue(m_typed);
        }
        const auto buttons = box->findChildren<QAbstractButton *>();
        for (QAbstractButton *button : buttons) {
            if (button->text().remove(u'&') == m_button) {
                button->click();
                return;
            }
        }
    }

    QString m_button, m_typed;
    QString m_question, m_title;
    QTimer m_timer;
};
