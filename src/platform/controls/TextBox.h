#pragma once

#include "Fonts.h"
#include "Placed.h"

#include <QLineEdit>

namespace platform::controls {

/// A box for one line of plain text.
class LineBox : public QLineEdit {
public:
    explicit LineBox(QWidget *parent) : QLineEdit(parent) { setFont(interfaceFont(Face::Verdana, 8.25)); }

    QString Text() const { return text(); }

    void SetText(const QString &text) { setText(text); }
};

using TextBox = Placed<LineBox>;

} // namespace platform::controls
