#include "platform/toolkit/ReportList.h"

#include "platform/runtime/Error.h"
#include "platform/toolkit/ReportModel.h"
#include "platform/toolkit/Twips.h"

#include <QHeaderView>
#include <QKeyEvent>

using namespace Qt::StringLiterals;

namespace toolkit {

ReportList::ReportList(const QString& name, QWidget* parent)
    : QTreeView(parent), model_(new ReportModel(this)) {
    setObjectName(name);
    setModel(model_);
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setAlternatingRowColors(true);
    header()->setObjectName(u"header"_s);
    header()->setSectionsClickable(true);
    header()->setSectionsMovable(false);
    header()->setStretchLastSection(false);
    header()->setHighlightSections(false);
    header()->setMinimumSectionSize(0);
    connect(header(), &QHeaderView::sectionClicked, this, &ReportList::setSortKey);
    connect(this, &QTreeView::doubleClicked, this, &ReportList::doubleClick);
}

void ReportList::addColumn(const QString& caption, double width, Qt::Alignment alignment) {
    const int column = model_->columnCount();
    model_->addColumn(caption, alignment);
    if (width <= 0)
        setColumnHidden(column, true);
    else
        setColumnWidth(column, toPixels(width));
}

int ReportList::addItem(const QString& text) {
    model_->append(text);
    return count() - 1;
}

void ReportList::setSubItem(int line, int column, const QString& text) {
    if (line < 0 || line >= count())
        runtime::raise(runtime::SubscriptOutOfRange, {}, objectName());
    model_->setCell(line, column, text);
}

void ReportList::clear() {
    if (!filling_ && hasSelection())
        keptKey_ = selectedText();
    model_->clear();
}

int ReportList::count() const {
    return model_->size();
}

QString ReportList::cell(int line, int column) const {
    if (line < 0 || line >= count())
        runtime::raise(runtime::SubscriptOutOfRange, {}, objectName());
    return model_->cell(line, column);
}

int ReportList::selectedLine() const {
    const QModelIndexList rows = selectionModel()->selectedRows();
    return rows.isEmpty() ? -1 : rows.first().row();
}

QString ReportList::selectedText() const {
    const int line = selectedLine();
    if (line < 0)
        runtime::raise(runtime::ObjectNotSet, {}, objectName());
    return itemText(line);
}

void ReportList::select(int line) {
    if (line < 0 || line >= count())
        runtime::raise(runtime::SubscriptOutOfRange, {}, objectName());
    int column = 0;
    while (isColumnHidden(column) && column < model_->columnCount() - 1)
        ++column;
    const QModelIndex index = model_->index(line, column);
    selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    scrollTo(index);
}

void ReportList::setSortKey(int column) {
    sortKey_ = column;
    header()->setSortIndicatorShown(column >= 0);
    if (column < 0)
        return;
    header()->setSortIndicator(column, Qt::AscendingOrder);
    if (!filling_) {
        const bool selected = hasSelection();
        const QString key = selected ? selectedText() : QString();
        model_->sortBy(column);
        if (selected)
            selectKey(key);
    }
}

void ReportList::selectKey(const QString& key) {
    for (int line = 0; line < count(); ++line) {
        if (itemText(line) == key) {
            select(line);
            return;
        }
    }
    if (count() > 0)
        select(0);
}

void ReportList::beginRefill() {
    if (hasSelection())
        keptKey_ = selectedText();
    filling_ = true;
    setUpdatesEnabled(false);
    model_->beginFill();
}

void ReportList::endRefill() {
    if (sortKey_ >= 0)
        model_->sortBy(sortKey_);
    model_->endFill();
    filling_ = false;
    selectKey(keptKey_);
    setUpdatesEnabled(true);
}

void ReportList::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        event->ignore(); // no window has a default: Enter is not a double click
        return;
    }
    QTreeView::keyPressEvent(event);
}

QItemSelectionModel::SelectionFlags ReportList::selectionCommand(const QModelIndex& index,
                                                                 const QEvent* event) const {
    const auto command = QTreeView::selectionCommand(index, event);
    return command & QItemSelectionModel::Deselect ? QItemSelectionModel::NoUpdate : command;
}

ReportList::Refill::Refill(ReportList& list) : list_(list) {
    list_.beginRefill();
}

ReportList::Refill::~Refill() {
    list_.endRefill();
}

} // namespace toolkit
