#include "DropList.h"

#include "Fonts.h"

#include <QLineEdit>
#include <QListView>

namespace platform::controls {

DropBox::DropBox(QWidget *parent) : QComboBox(parent), m_rows(this) {
    setModel(&m_rows);
    setEditable(true);
    setInsertPolicy(QComboBox::NoInsert);
    setCompleter(nullptr);
    setFont(interfaceFont(Face::Verdana, 8.25));
    // The width is that of the field; measuring thousands of rows for a size hint would be wasted.
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    connect(this, &QComboBox::activated, this, &DropBox::Click);
}

void DropBox::showPopup() {
    // The list of the drop list is made when it is first needed; thousands of rows of one height need no
    // measuring.
    if (auto *rows = qobject_cast<QListView *>(view())) {
        rows->setUniformItemSizes(true);
    }
    QComboBox::showPopup();
}

void DropBox::Clear() {
    m_rows.setStringList({});
    clearEditText();
}

void DropBox::AddItems(const QStringList &texts) {
    const QString written = currentText();
    m_rows.setStringList(m_rows.stringList() + texts);
    // The toolkit would choose the first row of a list that was empty.
    setCurrentIndex(-1);
    setEditText(written);
}

} // namespace platform::controls
