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
    // Near its beginning: an option answers only on its picture and text.
    QTest::mouseClick(&control, Qt::LeftButton, {},
                      {std::min(control.width() / 2, 12), control.height() / 2});
}

void WindowPage::type(const QString& name, const QString& text) const {
    QWidget& control = ready(name);
    const QPoint where(4, control.height() / 2);
    QWidget* inside = control.childAt(where); // a combo's line, an area's viewport
    QTest::mouseClick(inside == nullptr ? &control : inside, Qt::LeftButton, {}, where);
    QMetaObject::invokeMethod(control.inherits("QComboBox") ? inside : &control, "selectAll");
    if (text.isEmpty())
        QTest::keyClick(&control, Qt::Key_Backspace);
    else
        QTest::keyClicks(&control, text);
}

void WindowPage::key(const QString& name, Qt::Key key, Qt::KeyboardModifiers modifiers) const {
    QTest::keyClick(&ready(name), key, modifiers);
}

void WindowPage::choose(const QString& name, const QString& item) const {
    ready(name).setFocus();
    auto& combo = find<QComboBox>(name);
    // By keys only; all the way up and down makes a choice even of the item that is chosen already.
    for (int step = 1; step < 2 * combo.count(); ++step)
        QTest::keyClick(&combo, step < combo.count() ? Qt::Key_Up : Qt::Key_Down);
    while (combo.currentIndex() > 0 && combo.currentText() != item)
        QTest::keyClick(&combo, Qt::Key_Up);
    if (combo.currentText() != item)
        fail(name + u" has no item "_s + item);
}

void WindowPage::clickLine(const QString& name, int line, int times) const {
    ready(name);
    auto& list = find<toolkit::ReportList>(name);
    const QModelIndex index = list.model()->index(line, 1); // the first column may be hidden
    list.scrollTo(index);
    const QPoint where = list.visualRect(index).center();
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, where);
    if (times > 1)
        QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, where);
}

void WindowPage::clickHeader(const QString& name, int column) const {
    ready(name);
    const QHeaderView& header = *find<toolkit::ReportList>(name).header();
    QTest::mouseClick(header.viewport(), Qt::LeftButton, {}, {header.sectionViewportPosition(column) + 9, 9});
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
