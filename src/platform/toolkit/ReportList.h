#pragma once

#include "platform/host/Controls.h"

#include <QTreeView>

namespace toolkit {

class ReportModel;

/// A list of lines under column headers. Lines and columns are counted from 0; column 0 is the line's own
/// text and its key. One line can be selected. A click on a header makes that column the sort key, which
/// stays through every refill.
class ReportList : public QTreeView, public host::ReportLines {
    Q_OBJECT
public:
    ReportList(const QString& name, QWidget* parent);

    /// Fills the list anew: as long as it lives the list shows nothing of what goes on; when it ends, lines
    /// are in the order of the sort key, and the line with the key selected before is selected again, else
    /// the first.
    class Refill {
    public:
        explicit Refill(ReportList& list);
        ~Refill();
        Refill(const Refill&) = delete;
        Refill& operator=(const Refill&) = delete;

    private:
        ReportList& list_;
    };

    /// `width` in twips; 0 hides the column.
    void addColumn(const QString& caption, double width, Qt::Alignment alignment = Qt::AlignLeft);

    /// Appends a line and gives its number, good until the next sorting.
    int addItem(const QString& text);
    void setSubItem(int line, int column, const QString& text);
    /// Removes all lines. Inside a Refill the key selected before is still remembered.
    void clear();

    int count() const override;
    /// Raises runtime::SubscriptOutOfRange for a line that is not there.
    QString cell(int line, int column) const override;
    QString itemText(int line) const { return cell(line, 0); }

    bool hasSelection() const { return selectedLine() >= 0; }
    /// -1 if none is.
    int selectedLine() const;
    /// The selected line's own text; raises runtime::ObjectNotSet if none is selected.
    QString selectedText() const;
    void select(int line) override;

    /// Sorts by the column now and through every refill; -1 keeps the order of filling.
    void setSortKey(int column);

Q_SIGNALS:
    void doubleClick();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    /// The selected line stays selected: Ctrl with a click or Space takes nothing away.
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                         const QEvent* event) const override;

private:
    void beginRefill();
    void endRefill();
    void selectKey(const QString& key);

    ReportModel* model_;
    QString keptKey_;
    int sortKey_ = -1;
    bool filling_ = false;
};

} // namespace toolkit
