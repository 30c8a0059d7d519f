#pragma once

#include <QAbstractListModel>
#include <QAnyStringView>
#include <QByteArray>
#include <QColor>
#include <QIcon>
#include <QList>
#include <QSet>
#include <stdexcept>
#include <vector>

namespace platform::controls {

/// A key that the list has already; what() is a French text in UTF-8.
class DuplicateKeyError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// The rows of a list view: text, key (Qt::UserRole), number of a picture, highlight. Rows count from 0 here.
/// Their words lie together in one buffer, since lists have thousands of rows of which few are seen; in UTF-8, as they
/// come from a database, and because memory that is touched for the first time costs more than filling it.
class ListModel : public QAbstractListModel {
    Q_OBJECT

public:
    using QAbstractListModel::QAbstractListModel;

    /// Appends rows between these two calls; views are told once, at the end.
    void beginLoading();
    void endLoading();
    /// Throws DuplicateKeyError for a key that is present. Only while loading.
    void append(QAnyStringView key, QAnyStringView text, int picture);
    /// As append, for a key of which the caller knows that it is not present: a key column of a table.
    void appendDistinct(QAnyStringView key, QAnyStringView text, int picture);

    void remove(int row);
    void setText(int row, const QString &text);
    void setHighlight(int row, bool highlighted);

    QString key(int row) const { return QString::fromUtf8(words(m_rows.at(row).key)); }

    QString text(int row) const { return QString::fromUtf8(words(m_rows.at(row).text)); }

    int picture(int row) const { return m_rows.at(row).picture; }

    /// Row of a key, -1 if absent.
    int find(QStringView key) const;

    void setPictures(std::vector<QIcon> pictures) { m_pictures = std::move(pictures); }

    void setHighlightColour(const QColor &colour) { m_highlight = colour; }

    void setHeading(const QString &heading) { m_heading = heading; }

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

Q_SIGNALS:
    /// The user ended a label edit with this text; the row still holds its former one.
    void labelEdited(int row, const QString &text);

private:
    struct Words {
        int begin = 0;
        int size = 0;
    };

    struct Row {
        Words key, text;
        int picture = 0;
        bool highlighted = false;
    };

    Words keep(QAnyStringView words);

    QByteArrayView words(Words place) const {
        return QByteArrayView(m_words).sliced(place.begin, place.size);
    }

    void requireNew(QAnyStringView key);

    // These grow in place, which a std::vector would not.
    QList<Row> m_rows;
    QByteArray m_words;
    // The keys of the first rows, for the test of new ones; it adds the rows that have come since.
    QSet<QString> m_keys;
    std::vector<QIcon> m_pictures; // number 1 is the first
    QColor m_highlight;
    QString m_heading;
};

} // namespace platform::controls
