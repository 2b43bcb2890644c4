#pragma once

#include <QAbstractTableModel>
#include <QStringList>
#include <vector>

namespace toolkit {

/// The lines of a ReportList, in the order in which they show.
class ReportModel : public QAbstractTableModel {
    Q_OBJECT
public:
    using QAbstractTableModel::QAbstractTableModel;

    void addColumn(const QString& caption, Qt::Alignment alignment);
    void append(const QString& text);
    void setCell(int line, int column, const QString& text);
    QString cell(int line, int column) const;
    void clear();
    /// The lines there are, also during a fill.
    int size() const { return static_cast<int>(lines_.size()); }

    /// Ascending, ignoring case, dates (dd/MM/yyyy) by time and whole numbers by value; equal lines keep
    /// their order.
    void sortBy(int column);

    /// Between these two the view is told of nothing.
    void beginFill();
    void endFill();

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    struct Column {
        QString caption;
        Qt::Alignment alignment;
    };
    std::vector<Column> columns_;
    std::vector<QStringList> lines_;
    bool filling_ = false;
};

} // namespace toolkit
