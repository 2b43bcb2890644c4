#include "Hand.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QJsonDocument>
#include <QJsonObject>
#include <QKeyEvent>
#include <QLocalSocket>
#include <QMenuBar>
#include <QMouseEvent>
#include <QTabBar>

using namespace Qt::StringLiterals;

namespace {

/// What a target means: a part of a widget.
struct Place {
    QWidget* widget = nullptr;
    QRect part;
    QString text;
    bool enabled = true;
};

QString textOf(const QWidget& widget) {
    for (const char* property : {"text", "plainText", "currentText"})
        if (const QVariant text = widget.property(property); text.isValid())
            return text.toString();
    return widget.windowTitle();
}

/// All that shows and bears that name, or stands in what bears it.
QWidgetList showing(const QString& name) {
    QWidgetList widgets = QApplication::allWidgets();
    widgets.removeIf([&name](const QWidget* widget) {
        const bool shows = widget->isVisible();
        while (widget && widget->objectName() != name)
            widget = widget->parentWidget();
        return !shows || !widget;
    });
    return widgets;
}

/// The widget of that name that shows, in the modal window if there is one.
QWidget* named(const QString& target) {
    QWidget* best = nullptr;
    for (QWidget* widget : showing(target.section(u'/', 0, 0)))
        if (widget->objectName() == target.section(u'/', -1) &&
            (!best || widget->window() == QApplication::activeModalWidget()))
            best = widget;
    return best;
}

/// Menu items are no widgets: they are found in the menu, or bar, that shows them.
Place itemOfMenu(const QString& name) {
    for (QWidget* widget : QApplication::allWidgets()) {
        auto* bar = qobject_cast<QMenuBar*>(widget);
        auto* menu = qobject_cast<QMenu*>(widget);
        for (QAction* action : widget->isVisible() && (bar || menu) ? widget->actions() : QList<QAction*>())
            if (action->objectName() == name || (action->menu() && action->menu()->objectName() == name))
                return {widget, bar ? bar->actionGeometry(action) : menu->actionGeometry(action),
                        action->text(), action->isEnabled()};
    }
    return {};
}

/// A row by its number, or the first item of that text at any depth.
Place itemOf(QAbstractItemView& view, const QString& kind, const QString& value) {
    const QAbstractItemModel& model = *view.model();
    const QModelIndex root = view.rootIndex();
    QModelIndex index = kind == u"row"_s ? model.index(value.toInt(), 0, root) : QModelIndex();
    for (int column = 0; column < model.columnCount(root) && !index.isValid(); ++column)
        index =
            model.match(model.index(0, column, root), Qt::DisplayRole, value, 1, Qt::MatchRecursive).value(0);
    if (!index.isValid())
        return {};
    QRect rect = view.visualRect(index);
    if (rect.isEmpty()) // the keys' column is hidden
        rect = view.visualRect(index.siblingAtColumn(1));
    return {view.viewport(), rect & view.viewport()->rect(), index.data().toString()};
}

Place find(const QString& target) {
    QWidget* widget = named(target.section(u'#', 0, 0));
    if (!widget || qobject_cast<QMenu*>(widget)) // a menu is pressed where its title stands
        return itemOfMenu(target);
    const QString kind = target.section(u'#', 1).section(u':', 0, 0);
    const QString value = target.section(u':', 1);
    if (kind == u"at"_s)
        return {widget, QRect(value.section(u',', 0, 0).toInt(), value.section(u',', 1).toInt(), 1, 1), {}};
    if (kind == u"button"_s) {
        for (auto* button : widget->findChildren<QAbstractButton*>())
            if (button->isVisible() && button->text().remove(u'&') == value)
                return {button, button->rect(), value};
        return {};
    }
    if (auto* tabs = qobject_cast<QTabBar*>(widget); tabs && kind == u"tab"_s)
        return {tabs, tabs->tabRect(value.toInt()), {}};
    if (auto* view = qobject_cast<QAbstractItemView*>(widget); view && !kind.isEmpty())
        return itemOf(*view, kind, value);
    return {widget, widget->rect(), textOf(*widget)};
}

QJsonObject told(const Place& place) {
    const QWidget& widget = *place.widget;
    const QRect part(widget.mapToGlobal(place.part.topLeft()), place.part.size());
    const QPoint centre = part.center() * widget.devicePixelRatioF();
    const QWidget* focus = QApplication::focusWidget();
    return {{u"shows"_s, place.enabled && widget.isEnabled()},
            {u"text"_s, place.text},
            {u"x"_s, centre.x()},
            {u"y"_s, centre.y()},
            {u"area"_s, u"%1x%2+%3+%4"_s.arg(part.width()).arg(part.height()).arg(part.x()).arg(part.y())},
            {u"focus"_s, focus && (focus == &widget || widget.isAncestorOf(focus))},
            {u"active"_s, widget.isWindow() && widget.isActiveWindow()}};
}

void click(const Place& place) {
    const QPoint at = place.part.center();
    QWidget* inside = place.widget->childAt(at);
    QWidget* target = inside ? inside : place.widget;
    const QPointF local = target->mapFrom(place.widget, QPointF(at));
    for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease})
        QCoreApplication::postEvent(
            target, new QMouseEvent(type, local, target->mapToGlobal(local), Qt::LeftButton,
                                    type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton, {}));
}

void write(QWidget& widget, const QString& text) {
    const auto press = [&widget](int key, Qt::KeyboardModifiers modifiers, const QString& typed) {
        QCoreApplication::postEvent(&widget, new QKeyEvent(QEvent::KeyPress, key, modifiers, typed));
    };
    press(Qt::Key_End, widget.inherits("QLineEdit") ? Qt::NoModifier : Qt::ControlModifier, {});
    for (const QChar c : text)
        press(c.toUpper().unicode(), Qt::NoModifier, c);
}

/// Each field by the name of its page and its own. Parts of our controls, as the line of a combo box, have no
/// name of ours and are left out.
QJsonObject texts(const QString& window) {
    QJsonObject found;
    for (const QWidget* widget : showing(window)) {
        const bool isField = widget->inherits("QLineEdit") || widget->inherits("QPlainTextEdit") ||
                             widget->inherits("QComboBox") || widget->inherits("QLabel");
        const QWidget* page = widget;
        while (!page->isWindow() && !page->inherits("toolkit::Form"))
            page = page->parentWidget();
        const QString name = widget->objectName();
        if (isField && !name.isEmpty() && !name.startsWith("qt_"_L1))
            found[page->objectName() + u'/' + name] = textOf(*widget);
    }
    return found;
}

QJsonObject answer(const QStringList& request) {
    if (request[0] == u"texts"_s)
        return texts(request[1]);
    const Place place = find(request[1]);
    if (request[0] != u"see"_s && place.widget)
        click(place);
    if (request[0] == u"write"_s && place.widget)
        write(*place.widget, request[2]);
    return place.widget ? told(place) : QJsonObject();
}

} // namespace

QObject* Hand::create(const QString& /*key*/, const QString& /*options*/) {
    auto caller = std::make_unique<QLocalSocket>();
    // Once events are handled: the application that only asks for the screens at first lives shorter than
    // that.
    const auto call = [caller = caller.get()] {
        caller->connectToServer(qEnvironmentVariable("QUIVERDECK_HAND"));
    };
    QMetaObject::invokeMethod(caller.get(), call, Qt::QueuedConnection);
    connect(caller.get(), &QLocalSocket::readyRead, caller.get(), [caller = caller.get()] {
        while (caller->canReadLine()) {
            const QStringList request = QString::fromUtf8(caller->readLine()).chopped(1).split(u'\t');
            caller->write(QJsonDocument(answer(request)).toJson(QJsonDocument::Compact) + '\n');
            caller->flush();
        }
    });
    return caller.release();
}
