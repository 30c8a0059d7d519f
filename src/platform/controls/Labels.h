#pragma once

#include "Placed.h"

#include <QLabel>

namespace platform::controls {

/// A line of plain text. One that is cut ends in an ellipsis, and has the whole text as tool tip where it has none of
/// its own.
class TextLabel : public QLabel {
    Q_OBJECT

public:
    explicit TextLabel(QWidget *parent);

    QString Caption() const { return text(); }

    void SetCaption(const QString &caption);
    void SetForeColor(const QColor &colour);

Q_SIGNALS:
    void DoubleClicked();

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;

private:
    void tellWhole();

    QString m_wholeTip; // the tool tip that a cut caption got
};

/// A block with a caption in its middle that can be pressed and can fill up as a progress bar.
class CaptionPanel : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QString text READ Caption WRITE SetCaption)

public:
    explicit CaptionPanel(QWidget *parent);

    QString Caption() const { return m_caption; }

    void SetCaption(const QString &caption);
    void SetForeColor(const QColor &colour);

    /// Ground of the panel; transparent by default.
    void SetBackColor(const QColor &colour);

    /// Paints the whole rectangle, corners too, so that repainting it never paints what lies beneath.
    void SetSquare();

    /// Lets the keyboard reach the panel: Enter and the space bar click it, the menu key clicks it with the right button.
    void SetReachable();

    /// Shows a flood over this part of the panel, 0 to 100 percent, at once; painted only when the whole
    /// percentage changes.
    void SetFloodPercent(double percent);

Q_SIGNALS:
    void Clicked();
    void RightClicked(const QPoint &globalPosition);
    void Entered();
    void Exited();

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;

private:
    QString m_caption;
    QColor m_ground = Qt::transparent;
    double m_radius = 4;
    int m_flood = 0;
};

using Label = Placed<TextLabel>;
using Panel = Placed<CaptionPanel>;

} // namespace platform::controls
