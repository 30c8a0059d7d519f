#include "ListView.h"

#include "Fonts.h"
#include "RowDelegate.h"
#include "Skin.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

namespace platform::controls {

namespace {

constexpr Twips kRowHeight{330};
constexpr Twips kPictureSide{270};

constexpr int kEmptyMargin = 12; // pixels around what an empty list says

/// The row that the keyboard stands on keeps the writing and the picture of its own.
class ListRowDelegate : public RowDelegate {
public:
    using RowDelegate::RowDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override {
        RowDelegate::initStyleOption(option, index);
        option->palette.setColor(QPalette::HighlightedText, option->palette.color(QPalette::Text));
    }
};

/// What shows that the user turns to something else.
constexpr bool isAct(QEvent::Type type) {
    return type == QEvent::MouseButtonPress || type == QEvent::MouseButtonDblClick ||
           type == QEvent::KeyPress || type == QEvent::FocusIn || type == QEvent::FocusOut;
}

/// The text without accents and capitals, ligatures as two letters.
QString plainLetters(const QString &text) {
    QString letters;
    letters.reserve(text.size());
    for (const QChar letter : text.normalized(QString::NormalizationForm_KD).toCaseFolded()) {
        if (letter == u'œ' || letter == u'æ') {
            letters += letter == u'œ' ? u"oe" : u"ae";
        } else if (letter.category() != QChar::Mark_NonSpacing) {
            letters += letter;
        }
    }
    return letters;
}

constexpr bool movesInList(int key) {
    return key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp || key == Qt::Key_PageDown ||
           key == Qt::Key_Home || key == Qt::Key_End;
}

} // namespace

ListBox::ListBox(QWidget *parent) : QListView(parent), m_model(this) {
    setModel(&m_model);
    setItemDelegate(new ListRowDelegate(kRowHeight, this));
    setUniformItemSizes(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setIconSize({kPictureSide.pixels(), kPictureSide.pixels()});
    setFont(interfaceFont(Face::Verdana, 8.25));
    SetLabelEdit(LabelEditMode::Manual);
    connect(&m_model, &ListModel::labelEdited, this,
            [this](int row, const QString &text) { Q_EMIT AfterLabelEdit(row + 1, text); });
    connect(&m_model, &ListModel::modelReset, this, &ListBox::sayWhetherEmpty);
    connect(&m_model, &ListModel::rowsRemoved, this, &ListBox::sayWhetherEmpty);
    m_labelEdit.setSingleShot(true);
    connect(&m_labelEdit, &QTimer::timeout, this, [this] {
        dropLabelEdit();
        StartLabelEdit();
    });
}

void ListBox::SetColumn(const QString &heading, Twips width) {
    m_model.setHeading(heading);
    static_cast<RowDelegate *>(itemDelegate())->setWidth(width.pixels());
}

void ListBox::SetImageList(const std::vector<QPixmap> &pictures) {
    std::vector<QIcon> icons;
    icons.reserve(pictures.size());
    const double ratio = devicePixelRatio();
    for (const QPixmap &picture : pictures) {
        QPixmap small = picture.scaled(iconSize() * ratio, Qt::KeepAspectRatio, Qt::SmoothTransformation);
        small.setDevicePixelRatio(ratio);
        QIcon icon(small);
        // Without a picture of its own for it, a selected row would get a tinted one.
        icon.addPixmap(small, QIcon::Selected);
        icons.push_back(icon);
    }
    m_model.setPictures(std::move(icons));
}

void ListBox::SetBackColor(const QColor &colour) {
    QPalette colours = palette();
    colours.setColor(QPalette::Base, colour);
    colours.setColor(QPalette::Disabled, QPalette::Text, colour.darker(135));
    colours.setColor(QPalette::Highlight, colour.lighter(118));
    colours.setColor(QPalette::HighlightedText, colours.color(QPalette::Text)); // in the editor of a row
    setPalette(colours);
    colourScrollBar(*this, colour);
    paintFocusFrame(*this, hasFocus());
}

int ListBox::SelectedIndex() const {
    return selectionModel()->isSelected(currentIndex()) ? currentIndex().row() + 1 : 0;
}

void ListBox::Select(int index) {
    const QModelIndex row = m_model.index(checked(index));
    setCurrentIndex(row);
    if (row.row() == 0) {
        scrollToTop(); // needs no places of all the other rows
    } else {
        scrollTo(row);
    }
}

void ListBox::SetLabelEdit(LabelEditMode mode) {
    setEditTriggers(mode == LabelEditMode::Automatic ? QAbstractItemView::SelectedClicked
                                                     : QAbstractItemView::NoEditTriggers);
    if (mode == LabelEditMode::Manual) {
        dropLabelEdit();
    }
}

void ListBox::StartLabelEdit() {
    if (currentIndex().isValid()) {
        edit(currentIndex());
    }
}

void ListBox::keyPressEvent(QKeyEvent *event) {
    if (!event->isAutoRepeat()) {
        m_indexAtPress = SelectedIndex();
    }
    if (SelectedIndex() == 0 && Count() > 0 && movesInList(event->key())) {
        // A list that got the focus stands on a row that nobody has chosen yet: choose that one first.
        Select(currentIndex().isValid() ? currentIndex().row() + 1 : 1);
        return;
    }
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter && SelectedIndex() != 0 && !event->isAutoRepeat()) {
        Q_EMIT DblClick();
        return;
    }
    if (event->key() == Qt::Key_Space && isBeingTyped()) {
        keyboardSearch(event->text());
        return;
    }
    QListView::keyPressEvent(event);
}

bool ListBox::isBeingTyped() const {
    return m_sinceTyped.isValid() && !m_sinceTyped.hasExpired(QApplication::keyboardInputInterval());
}

void ListBox::keyboardSearch(const QString &typed) {
    m_typed = isBeingTyped() ? m_typed + plainLetters(typed) : plainLetters(typed);
    m_sinceTyped.start();
    if (m_typed.isEmpty()) {
        return;
    }
    // One letter, typed again and again, goes on to the next row; a longer beginning may stay where it is.
    const bool sameLetter = m_typed.count(m_typed.front()) == m_typed.size();
    const QString wanted = sameLetter ? m_typed.left(1) : m_typed;
    const int first = SelectedIndex() - (sameLetter ? 0 : 1);
    for (int i = 0; i < Count(); ++i) {
        // A letter may be written as two characters, so twice as many are looked at.
        const int row = (std::max(first, 0) + i) % Count();
        if (plainLetters(m_model.text(row).left(2 * wanted.size())).startsWith(wanted)) {
            Select(row + 1);
            return;
        }
    }
}

void ListBox::keyReleaseEvent(QKeyEvent *event) {
    QListView::keyReleaseEvent(event);
    // A key held down repeats its release; only the last one means that the cook has arrived. Letters search.
    if (!event->isAutoRepeat() && (movesInList(event->key()) || SelectedIndex() != m_indexAtPress)) {
        m_indexAtPress = SelectedIndex();
        Q_EMIT ArrowReleased();
    }
}

void ListBox::mousePressEvent(QMouseEvent *event) {
    m_indexAtPress = SelectedIndex();
    QListView::mousePressEvent(event);
}

void ListBox::mouseReleaseEvent(QMouseEvent *event) {
    QListView::mouseReleaseEvent(event);
    // Dragged over the rows, the pointer selects as it goes and may be let go below the last one.
    const bool onRow = indexAt(event->position().toPoint()).isValid();
    const bool reached = SelectedIndex() != 0 && SelectedIndex() != m_indexAtPress;
    if (event->button() == Qt::RightButton) {
        // What the menu acts on is the row that is shown.
        if (reached) {
            Q_EMIT ItemClicked();
        }
        Q_EMIT RightClicked(event->globalPosition().toPoint());
    } else if (event->button() == Qt::LeftButton && (onRow || reached)) {
        Q_EMIT ItemClicked();
    }
}

void ListBox::mouseDoubleClickEvent(QMouseEvent *event) {
    QListView::mouseDoubleClickEvent(event);
    if (event->button() == Qt::LeftButton && indexAt(event->position().toPoint()).isValid()) {
        Q_EMIT DblClick();
    }
}

void ListBox::focusInEvent(QFocusEvent *event) {
    QListView::focusInEvent(event);
    paintFocusFrame(*this, true);
    Q_EMIT Focused();
}

void ListBox::focusOutEvent(QFocusEvent *event) {
    QListView::focusOutEvent(event);
    paintFocusFrame(*this, false);
}

void ListBox::contextMenuEvent(QContextMenuEvent *event) {
    if (event->reason() == QContextMenuEvent::Keyboard) {
        Q_EMIT RightClicked(viewport()->mapToGlobal(visualRect(currentIndex()).center()));
    }
}

bool ListBox::edit(const QModelIndex &index, EditTrigger trigger, QEvent *event) {
    if (trigger != SelectedClicked) {
        return QListView::edit(index, trigger, event);
    }
    // The toolkit would wait, too, but nothing could hold it up.
    if (editTriggers().testFlag(SelectedClicked)) {
        m_labelEdit.start(QApplication::doubleClickInterval());
        qApp->installEventFilter(this);
    }
    return false;
}

bool ListBox::eventFilter(QObject *watched, QEvent *event) {
    if (isAct(event->type())) {
        dropLabelEdit();
    }
    return QListView::eventFilter(watched, event);
}

void ListBox::dropLabelEdit() {
    m_labelEdit.stop();
    qApp->removeEventFilter(this);
}

void ListBox::SetEmptyText(const QString &text) {
    m_emptyText = text;
    sayWhetherEmpty();
}

void ListBox::sayWhetherEmpty() {
    dropLabelEdit(); // the rows are others now
    setAccessibleDescription(Count() == 0 ? m_emptyText : QString());
    viewport()->update();
}

void ListBox::paintEvent(QPaintEvent *event) {
    QListView::paintEvent(event);
    if (Count() == 0) {
        QPainter painter(viewport());
        const QRect room =
            viewport()->rect().marginsRemoved({kEmptyMargin, kEmptyMargin, kEmptyMargin, kEmptyMargin});
        painter.drawText(room, Qt::AlignCenter | Qt::TextWordWrap, m_emptyText);
    }
}

QItemSelectionModel::SelectionFlags ListBox::selectionCommand(const QModelIndex &index,
                                                              const QEvent *event) const {
    const auto command = QListView::selectionCommand(index, event);
    const bool empties = !index.isValid() || command.testFlag(QItemSelectionModel::Deselect);
    return empties ? QItemSelectionModel::NoUpdate : command;
}

int ListBox::checked(int index) const {
    if (index < 1 || index > Count()) {
        throw std::out_of_range("L'élément " + std::to_string(index) + " n'est pas dans la liste.");
    }
    return index - 1;
}

} // namespace platform::controls
