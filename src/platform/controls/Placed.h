#pragma once

#include "ControlTable.h"

#include <QRect>
#include <QString>
#include <QWidget>

namespace platform::controls {

/// Names a control after its row of the window's table and gives it the row's tool tip and accessible name.
void applyRow(QWidget &control, const ControlRow &row);

/// A control that knows its place in twips: Base with a row of the window's table.
template <class Base>
class Placed : public Base {
public:
    Placed(QWidget *parent, const ControlRow &row) : Base(parent) {
        applyRow(*this, row);
        if constexpr (requires { this->SetCaption(QString()); }) {
            this->SetCaption(QStringView(row.caption).toString());
        }
        SetPlace(row.place());
    }

    Twips Left() const { return m_place.left; }

    Twips Top() const { return m_place.top; }

    Twips Width() const { return m_place.width; }

    Twips Height() const { return m_place.height; }

    Twips Bottom() const { return m_place.bottom(); }

    const Rectangle &Place() const { return m_place; }

    void SetPlace(const Rectangle &place) {
        m_place = place;
        this->setGeometry(place.pixels());
    }

    void SetLeft(Twips left) { SetPlace({left, m_place.top, m_place.width, m_place.height}); }

    void SetTop(Twips top) { SetPlace({m_place.left, top, m_place.width, m_place.height}); }

    void SetWidth(Twips width) { SetPlace({m_place.left, m_place.top, width, m_place.height}); }

    void SetHeight(Twips height) { SetPlace({m_place.left, m_place.top, m_place.width, height}); }

    /// Free text kept with the control, as the windows note what a control stands for.
    QString Tag() const { return m_tag; }

    void SetTag(const QString &tag) { m_tag = tag; }

private:
    Rectangle m_place;
    QString m_tag;
};

} // namespace platform::controls
