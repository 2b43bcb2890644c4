#include "platform/toolkit/Combo.h"

#include "platform/runtime/Error.h"
#include "platform/toolkit/ApostropheGuard.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QStyle>
#include <QWheelEvent>

namespace toolkit {

namespace {
constexpr Qt::MatchFlags exactly = Qt::MatchExactly | Qt::MatchCaseSensitive;
}

Combo::Combo(const QString& name, QWidget* parent, Kind kind) : QComboBox(parent) {
    setObjectName(name);
    setEditable(kind == Kind::Editable);
    setInsertPolicy(QComboBox::NoInsert);
    setMaxVisibleItems(12);
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(0);
    if (isEditable()) {
        setCompleter(nullptr);
        lineEdit()->setTextMargins(-1, 0, -1, 0);
        // By itself the box takes a typed text that equals an item for a choice, on Enter and on leaving.
        disconnect(lineEdit(), &QLineEdit::editingFinished, this, nullptr);
        disconnect(lineEdit(), &QLineEdit::returnPressed, this, nullptr);
        connect(lineEdit(), &QLineEdit::textChanged, this, &Combo::changed);
    } else {
        connect(this, &QComboBox::currentTextChanged, this, &Combo::changed);
    }
    connect(this, &QComboBox::activated, this, &Combo::clicked);
}

void Combo::addItem(const QString& text) {
    const bool first = QComboBox::count() == 0;
    const QSignalBlocker quiet(this);
    QComboBox::addItem(text);
    if (first) { // a list that gets its first item chooses nothing by that
        const QString shown = isEditable() ? lineEdit()->text() : QString();
        setCurrentIndex(-1);
        if (isEditable() && !shown.isEmpty() && shown != text)
            setEditText(shown);
    }
}

void Combo::addItems(const QStringList& texts) {
    for (const QString& text : texts)
        addItem(text);
}

int Combo::index() const {
    return itemText(currentIndex()) == currentText() ? currentIndex() : findText(currentText(), exactly);
}

void Combo::showItem(int index) {
    if (guard_ != nullptr)
        guard_->pause(true);
    setCurrentIndex(index);
    if (isEditable())
        setEditText(index < 0 ? QString() : itemText(index)); // the same item under another text
    if (guard_ != nullptr)
        guard_->pause(false);
}

void Combo::setText(const QString& text) {
    const int found = findText(text, exactly);
    if (!isEditable()) {
        if (found < 0)
            runtime::raise(runtime::InvalidPropertyValue, {}, objectName());
        setCurrentIndex(found);
        return;
    }
    if (found >= 0) {
        showItem(found);
        return;
    }
    if (guard_ != nullptr)
        guard_->pause(true);
    setEditText(text);
    if (guard_ != nullptr)
        guard_->pause(false);
}

void Combo::selectIndex(int index) {
    if (index < -1 || index >= count())
        runtime::raise(runtime::InvalidPropertyValue, {}, objectName());
    showItem(index);
    if (index >= 0)
        Q_EMIT clicked();
}

void Combo::guardApostrophes() {
    if (guard_ == nullptr && isEditable()) {
        guard_ = new ApostropheGuard(this);
        setValidator(guard_);
    }
}

void Combo::showPopup() {
    const int scrollBar = count() > maxVisibleItems() ? style()->pixelMetric(QStyle::PM_ScrollBarExtent) : 0;
    view()->setMinimumWidth(view()->sizeHintForColumn(0) + scrollBar + 8);
    QComboBox::showPopup();
}

void Combo::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        event->ignore();
        return;
    }
    if (guard_ != nullptr && event->text() == QLatin1String("'")) {
        lineEdit()->insert(ApostropheGuard::guarded(event->text()));
        event->accept();
        return;
    }
    QComboBox::keyPressEvent(event);
}

void Combo::wheelEvent(QWheelEvent* event) {
    event->ignore(); // a turn of the wheel over the page is no choice
}

} // namespace toolkit
