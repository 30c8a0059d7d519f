#pragma once

#include "Placed.h"

#include <QCheckBox>
#include <QRadioButton>

namespace platform::controls {

/// A box that is ticked or not, with a caption; Base is a button of the toolkit that keeps its state.
template <class Base>
class CaptionedOption : public Base {
public:
    using Base::Base;

    bool Value() const { return this->isChecked(); }

    void SetValue(bool value) { this->setChecked(value); }

    QString Caption() const { return this->text(); }

    void SetCaption(const QString &caption) { this->setText(caption); }

    void SetForeColor(const QColor &colour) {
        QPalette colours = this->palette();
        colours.setColor(QPalette::WindowText, colour);
        QColor faded = colour;
        faded.setAlphaF(kDisabledAlpha);
        colours.setColor(QPalette::Disabled, QPalette::WindowText, faded);
        this->setPalette(colours);
    }

protected:
    /// The whole place of the control can be clicked, as its focus ring shows.
    bool hitButton(const QPoint &point) const override { return this->rect().contains(point); }

private:
    static constexpr float kDisabledAlpha = 0.45F;
};

using CheckBox = Placed<CaptionedOption<QCheckBox>>;
using OptionButton = Placed<CaptionedOption<QRadioButton>>;

} // namespace platform::controls
