#pragma once

#include "Placed.h"

#include <QScrollArea>

namespace platform::controls {

/// A panel that scrolls up and down over a content of a height of its own. Controls that scroll are children
/// of Content().
class ScrollArea : public QScrollArea {
    Q_OBJECT

public:
    explicit ScrollArea(QWidget *parent);

    QWidget *Content() const { return m_content; }

    /// Height of the content.
    void SetScrollableHeight(Twips height);

    Twips ScrollableHeight() const { return m_height; }

    void ScrollToTop();

    void SetBackColor(const QColor &colour);

Q_SIGNALS:
    /// The user pressed the content, or a control of it that takes no presses.
    void Clicked();

protected:
    void resizeEvent(QResizeEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;

private:
    void fitContent();

    QWidget *m_content;
    Twips m_height;
};

using ScrollPanel = Placed<ScrollArea>;

} // namespace platform::controls
