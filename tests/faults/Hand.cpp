#include "Hand.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QJsonDocument>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QLocalSocket>
#include <QMessageBox>
#include <QMouseEvent>
#include <QPlainTextEdit>

using namespace Qt::StringLiterals;

namespace {

QString textOf(const QWidget& widget) {
    if (const auto* box = qobject_cast<const QMessageBox*>(&widget))
        return box->text();
    if (const auto* area = qobject_cast<const QPlainTextEdit*>(&widget))
        return area->toPlainText();
    if (const auto* combo = qobject_cast<const QComboBox*>(&widget))
        return combo->currentText();
    return widget.property("text").toString();
}

bool isField(const QWidget& widget) {
    return qobject_cast<const QLineEdit*>(&widget) || qobject_cast<const QPlainTextEdit*>(&widget) ||
           qobject_cast<const QComboBox*>(&widget) || qobject_cast<const QLabel*>(&widget);
}

/// The names from the window down to the control; what has no name of ours, as a part of a combo box, has
/// none.
QString pathOf(const QWidget& widget) {
    const auto isOurs = [](const QString& name) {
        return !name.isEmpty() && !name.startsWith(u"qt_"_s) && name != u"client"_s && name != u"area"_s;
    };
    QString path = widget.objectName();
    if (!isOurs(path))
        return {};
    for (const QWidget* up = widget.parentWidget(); up; up = up->parentWidget())
        if (isOurs(up->objectName()))
            path = up->objectName() + u'/' + path;
    return path;
}

QWidget* shown(const QString& target) {
    const QString button = target.startsWith(u"box:"_s) ? target.mid(4) : QString();
    const QString name = target.section(u'@', 0, 0);
    const QWidgetList all = QApplication::allWidgets();
    for (QWidget* widget : all) {
        if (!widget->isVisible())
            continue;
        if (!button.isEmpty()) {
            auto* found = qobject_cast<QAbstractButton*>(widget);
            if (found && qobject_cast<QMessageBox*>(found->window()) && found->text().remove(u'&') == button)
                return found;
        } else if (name == u"box"_s) {
            if (qobject_cast<QMessageBox*>(widget))
                return widget;
        } else if (const QStringList path = pathOf(*widget).split(u'/');
                   path.last() == name.section(u'/', -1) && path.contains(name.section(u'/', 0, 0))) {
            return widget;
        }
    }
    return nullptr;
}

void click(QWidget& widget, const QString& place) {
    const QPoint at = place.isEmpty()
                          ? widget.rect().center()
                          : QPoint(place.section(u',', 0, 0).toInt(), place.section(u',', 1).toInt());
    QWidget* inside = widget.childAt(at);
    QWidget* target = inside ? inside : &widget;
    const QPointF local = target->mapFrom(&widget, QPointF(at));
    const QPointF global = target->mapToGlobal(local);
    QCoreApplication::postEvent(target, new QMouseEvent(QEvent::MouseButtonPress, local, global,
                                                        Qt::LeftButton, Qt::LeftButton, Qt::NoModifier));
    QCoreApplication::postEvent(target, new QMouseEvent(QEvent::MouseButtonRelease, local, global,
                                                        Qt::LeftButton, Qt::NoButton, Qt::NoModifier));
}

void key(QWidget& widget, int code, Qt::KeyboardModifiers modifiers, const QString& text) {
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease})
        QCoreApplication::postEvent(&widget, new QKeyEvent(type, code, modifiers, text));
}

QJsonObject texts(const QString& window) {
    QJsonObject found;
    const QWidgetList all = QApplication::allWidgets();
    for (const QWidget* widget : all) {
        const QString path = pathOf(*widget);
        if (widget->isVisible() && isField(*widget) && path.startsWith(window + u'/'))
            found[path] = textOf(*widget);
    }
    return found;
}

QJsonObject answer(const QString& request) {
    const QString verb = request.section(u' ', 0, 0);
    const QString target = request.section(u' ', 1, 1);
    if (verb == u"texts"_s)
        return texts(target);
    QWidget* widget = shown(target);
    if (!widget)
        return {{u"shows"_s, false}};
    if (verb == u"press"_s || verb == u"write"_s)
        click(*widget, target.section(u'@', 1));
    if (verb == u"write"_s) {
        key(*widget, Qt::Key_End, qobject_cast<QLineEdit*>(widget) ? Qt::NoModifier : Qt::ControlModifier,
            {});
        for (const QChar c : request.section(u' ', 2))
            key(*widget, c.toUpper().unicode(), Qt::NoModifier, c);
    }
    return {{u"shows"_s, true}, {u"enabled"_s, widget->isEnabled()}, {u"text"_s, textOf(*widget)}};
}

} // namespace

Hand::Hand(const QString& socket) {
    QLocalServer::removeServer(socket);
    server_.listen(socket);
    connect(&server_, &QLocalServer::newConnection, this, &Hand::serve);
}

void Hand::serve() {
    while (QLocalSocket* caller = server_.nextPendingConnection()) {
        connect(caller, &QLocalSocket::disconnected, caller, &QObject::deleteLater);
        connect(caller, &QLocalSocket::readyRead, caller, [caller] {
            while (caller->canReadLine()) {
                const QString request = QString::fromUtf8(caller->readLine()).chopped(1);
                caller->write(QJsonDocument(answer(request)).toJson(QJsonDocument::Compact) + '\n');
                caller->flush();
            }
        });
    }
}

QObject* HandPlugin::create(const QString& key, const QString& /*options*/) {
    const QString socket = qEnvironmentVariable("QUIVERDECK_HAND");
    return key == u"faulthand"_s && !socket.isEmpty() ? new Hand(socket) : nullptr;
}
