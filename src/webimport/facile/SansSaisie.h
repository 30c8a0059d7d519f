#pragma once

#include <QObject>

namespace webimport::facile {

/// While it lives, what the user does to the program is lost; it goes on painting itself.
class SansSaisie : public QObject {
    Q_OBJECT

public:
    SansSaisie();

protected:
    bool eventFilter(QObject *objet, QEvent *evenement) override;
};

} // namespace webimport::facile
