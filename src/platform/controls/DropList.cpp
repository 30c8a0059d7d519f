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
    auto *rows = new QListView(this);
    rows->setUniformItemSizes(true);
    setView(rows);
    connect(this, &QComboBox::activated, this, &DropBox::Click);
}

void DropBox::Clear() {
    m_rows.setStringList({});
    clearEditText();
}

void DropBox::AddItem(const QString &text) {
    const int row = m_rows.rowCount();
    m_rows.insertRow(row);
    m_rows.setData(m_rows.index(row), text);
}

void DropBox::AddItems(const QStringList &texts) {
    const QString written = currentText();
    m_rows.setStringList(m_rows.stringList() + texts);
    setCurrentIndex(-1);
    setEditText(written);
}

} // namespace platform::controls
