#include "support/WindowPage.h"

#include "platform/toolkit/Combo.h"
#include "platform/toolkit/ReportList.h"
#include "platform/toolkit/TabStrip.h"
#include "platform/toolkit/TextArea.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QHeaderView>
#include <QLineEdit>
#include <QMimeData>
#include <QTest>

using namespace Qt::StringLiterals;

void WindowPage::fail(const QString& what) const {
    const QByteArray text = u"%1: %2"_s.arg(window_.objectName(), what).toUtf8();
    QTest::qFail(text.constData(), __FILE__, __LINE__);
    throw std::runtime_error(text.toStdString());
}

QWidget& WindowPage::widget(const QString& name) const {
    auto* found = window_.findChild<QWidget*>(name);
    if (found == nullptr)
        fail(u"no control named "_s + name);
    return *found;
}

QWidget& WindowPage::ready(const QString& name) const {
    QWidget& control = widget(name);
    if (!control.isVisible())
        fail(name + u" does not show"_s);
    if (!control.isEnabled())
        fail(name + u" is disabled"_s);
    return control;
}

void WindowPage::press(const QString& name) const {
    QWidget& control = ready(name);
    QPoint where = control.rect().center();
    if (qobject_cast<QAbstractButton*>(&control) != nullptr)
        where = QPoint(std::min(where.x(), 12), where.y()); // an option answers only on its picture and text
    QTest::mouseClick(&control, Qt::LeftButton, {}, where);
}

void WindowPage::type(const QString& name, const QString& text) const {
    QWidget& control = ready(name);
    QWidget* inside = &control;
    if (const auto* combo = qobject_cast<QComboBox*>(&control);
        combo != nullptr && combo->lineEdit() != nullptr)
        inside = combo->lineEdit();
    else if (auto* area = qobject_cast<QPlainTextEdit*>(&control))
        inside = area->viewport();
    QTest::mouseClick(inside, Qt::LeftButton, {}, QPoint(4, inside->height() / 2));
    if (auto* line = qobject_cast<QLineEdit*>(inside))
        line->selectAll();
    else if (auto* area = qobject_cast<QPlainTextEdit*>(&control))
        area->selectAll();
    if (text.isEmpty())
        QTest::keyClick(&control, Qt::Key_Backspace);
    else
        QTest::keyClicks(&control, text);
}

void WindowPage::key(const QString& name, Qt::Key key, Qt::KeyboardModifiers modifiers) const {
    QTest::keyClick(&ready(name), key, modifiers);
}

void WindowPage::choose(const QString& name, const QString& item) const {
    ready(name);
    auto& combo = find<QComboBox>(name);
    const int wanted = combo.findText(item, Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (wanted < 0)
        fail(name + u" has no item "_s + item);
    combo.setFocus();
    // By keys only; one step more and back makes a choice even of the item that is chosen already.
    for (int step = combo.currentIndex(); step > 0; --step)
        QTest::keyClick(&combo, Qt::Key_Up);
    if (wanted == 0) {
        QTest::keyClick(&combo, Qt::Key_Down);
        QTest::keyClick(&combo, Qt::Key_Up);
    }
    while (combo.currentIndex() < wanted)
        QTest::keyClick(&combo, Qt::Key_Down);
}

void WindowPage::clickLine(const QString& name, int line, int times) const {
    ready(name);
    auto& list = find<toolkit::ReportList>(name);
    int column = 0;
    while (list.isColumnHidden(column))
        ++column;
    const QModelIndex index = list.model()->index(line, column);
    list.scrollTo(index);
    const QPoint where = list.visualRect(index).center();
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, where);
    if (times > 1)
        QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, where);
}

void WindowPage::clickHeader(const QString& name, int column) const {
    ready(name);
    const QHeaderView& header = *find<toolkit::ReportList>(name).header();
    const QPoint where(header.sectionViewportPosition(column) + header.sectionSize(column) / 2,
                       header.height() / 2);
    QTest::mouseClick(header.viewport(), Qt::LeftButton, {}, where);
}

void WindowPage::clickTab(const QString& name, int index) const {
    ready(name);
    auto& strip = find<toolkit::TabStrip>(name);
    QTest::mouseClick(&strip, Qt::LeftButton, {}, strip.tabRect(index - 1).center());
}

bool WindowPage::drop(const QString& name, const QString& text) const {
    QWidget& control = ready(name);
    QMimeData data;
    data.setText(text);
    const QPoint middle = control.rect().center();
    QDragEnterEvent enter(middle, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QDropEvent drop(middle, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&control, &enter);
    if (!control.acceptDrops() || !enter.isAccepted())
        return false;
    QApplication::sendEvent(&control, &drop);
    return drop.isAccepted();
}

QString WindowPage::text(const QString& name) const {
    for (const char* property : {"text", "plainText", "currentText"})
        if (const QVariant shown = widget(name).property(property); shown.isValid())
            return shown.toString();
    fail(name + u" shows no text"_s);
}
