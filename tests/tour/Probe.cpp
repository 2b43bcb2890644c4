#include "Probe.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QHeaderView>
#include <QJsonArray>
#include <QJsonDocument>
#include <QLabel>
#include <QLineEdit>
#include <QLocalSocket>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QTabBar>
#include <QTextEdit>
#include <QTimer>
#include <QTreeView>

namespace {

QString textOf(const QWidget* widget) {
    if (auto* box = qobject_cast<const QMessageBox*>(widget))
        return box->text();
    if (auto* label = qobject_cast<const QLabel*>(widget))
        return label->text();
    if (auto* line = qobject_cast<const QLineEdit*>(widget))
        return line->text();
    if (auto* area = qobject_cast<const QPlainTextEdit*>(widget))
        return area->toPlainText();
    if (auto* rich = qobject_cast<const QTextEdit*>(widget))
        return rich->toPlainText();
    if (auto* combo = qobject_cast<const QComboBox*>(widget))
        return combo->currentText();
    if (auto* button = qobject_cast<const QAbstractButton*>(widget))
        return button->text();
    const QVariant text = widget->property("text");
    return text.isValid() ? text.toString() : widget->windowTitle();
}

// The keys go to the control or to a part of it.
bool hasFocus(const QWidget* widget) {
    const QWidget* focus = QApplication::focusWidget();
    return focus && (focus == widget || widget->isAncestorOf(focus));
}

QJsonObject place(const QWidget* widget, const QRect& part) {
    const QPoint centre = widget->mapToGlobal(part.center());
    const qreal ratio = widget->devicePixelRatioF();
    return {{"found", true},
            {"visible", widget->isVisible()},
            {"enabled", widget->isEnabled()},
            {"x", qRound(centre.x() * ratio)},
            {"y", qRound(centre.y() * ratio)},
            {"width", part.width()},
            {"height", part.height()},
            {"left", widget->mapToGlobal(part.topLeft()).x()},
            {"top", widget->mapToGlobal(part.topLeft()).y()},
            {"text", textOf(widget)},
            {"focus", hasFocus(widget)},
            {"window", widget->window()->objectName()}};
}

// The index of a view's row (by number) or of the first item, at any depth, that reads `text`.
QModelIndex indexOf(const QAbstractItemView* view, const QString& part, const QString& value) {
    const QAbstractItemModel* model = view->model();
    if (part == "row")
        return model->index(value.toInt(), 0, view->rootIndex());
    for (int column = 0; column < model->columnCount(view->rootIndex()); ++column) {
        const QModelIndexList hits =
            model->match(model->index(0, column, view->rootIndex()), Qt::DisplayRole, value, 1,
                         Qt::MatchFixedString | Qt::MatchRecursive | Qt::MatchCaseSensitive);
        if (!hits.isEmpty())
            return hits.first();
    }
    return {};
}

QWidget* buttonOf(const QWidget* window, const QString& text);

QJsonObject placeOfPart(QWidget* widget, const QString& part, const QString& value) {
    if (part == "button") {
        const QWidget* button = buttonOf(widget, value);
        return button ? place(button, button->rect()) : QJsonObject{{"found", false}};
    }
    if (auto* view = qobject_cast<QAbstractItemView*>(widget)) {
        if (part == "rows")
            return {
                {"found", true}, {"visible", true}, {"count", view->model()->rowCount(view->rootIndex())}};
        if (auto* tree = qobject_cast<QTreeView*>(view); tree && part == "section") {
            const int section = value.toInt();
            const QHeaderView* header = tree->header();
            return place(header->viewport(), QRect(header->sectionViewportPosition(section), 0,
                                                   header->sectionSize(section), header->height()));
        }
        QModelIndex index = indexOf(view, part, value);
        if (!index.isValid())
            return {{"found", false}};
        if (auto* tree = qobject_cast<QTreeView*>(view); tree && tree->isColumnHidden(index.column()))
            index = index.siblingAtColumn(1);
        QRect rect = view->visualRect(index);
        if (rect.width() == 0)
            rect = view->visualRect(index.siblingAtColumn(1));
        QJsonObject found = place(view->viewport(), rect.intersected(view->viewport()->rect()));
        found["text"] = index.data().toString();
        return found;
    }
    auto* tabs = qobject_cast<QTabBar*>(widget);
    if (!tabs)
        tabs = widget->findChild<QTabBar*>();
    if (tabs && part == "tab")
        return place(tabs, tabs->tabRect(value.toInt()));
    if (part == "at") { // an offset in pixels from the upper left corner
        const QStringList offset = value.split(',');
        return place(widget, QRect(offset.value(0).toInt(), offset.value(1).toInt(), 1, 1));
    }
    return {{"found", false}};
}

// The message box on show, and its buttons by their text without the access key's mark.
QMessageBox* shownBox() {
    const QWidgetList all = QApplication::topLevelWidgets();
    for (QWidget* widget : all) {
        auto* box = qobject_cast<QMessageBox*>(widget);
        if (box && box->isVisible())
            return box;
    }
    return nullptr;
}

QWidget* buttonOf(const QWidget* window, const QString& text) {
    const auto buttons = window->findChildren<QAbstractButton*>();
    for (QAbstractButton* button : buttons)
        if (button->isVisible() && button->text().remove('&') == text)
            return button;
    return nullptr;
}

QWidget* widgetNamed(const QString& target) {
    if (target == "box")
        return shownBox();
    if (target == "dialog") // a dialog of the toolkit's own, such as the printer's
        return QApplication::activeModalWidget();
    const QString window = target.contains('/') ? target.section('/', 0, 0) : QString();
    const QString name = target.section('/', -1);
    QWidget* best = nullptr;
    const QWidget* modal = QApplication::activeModalWidget();
    const QWidgetList all = QApplication::allWidgets();
    for (QWidget* widget : all) {
        if (widget->objectName() != name)
            continue;
        if (!window.isEmpty()) {
            const QWidget* up = widget;
            while (up && up->objectName() != window)
                up = up->parentWidget();
            if (!up)
                continue;
        }
        const bool better = !best || (widget->isVisible() && !best->isVisible()) ||
                            (widget->isVisible() && modal && widget->window() == modal);
        if (better)
            best = widget;
    }
    return best;
}

// Menu items are no widgets: they are found in the menu, or bar, that shows them.
QJsonObject findAction(const QString& name) {
    const QWidgetList all = QApplication::allWidgets();
    for (QWidget* widget : all) {
        const QList<QAction*> actions = widget->actions();
        for (QAction* action : actions) {
            const bool named =
                action->objectName() == name || (action->menu() && action->menu()->objectName() == name);
            if (!named || !widget->isVisible())
                continue;
            QRect part;
            if (auto* bar = qobject_cast<QMenuBar*>(widget))
                part = bar->actionGeometry(action);
            else if (auto* menu = qobject_cast<QMenu*>(widget))
                part = menu->actionGeometry(action);
            if (part.isEmpty())
                continue;
            QJsonObject found = place(widget, part);
            found["enabled"] = action->isEnabled();
            found["text"] = action->text();
            return found;
        }
    }
    return {{"found", false}};
}

} // namespace

Probe::Probe(const QString& socket, QObject* parent) : QObject(parent) {
    QLocalServer::removeServer(socket);
    server.listen(socket);
    connect(&server, &QLocalServer::newConnection, this, &Probe::serve);
}

void Probe::serve() {
    while (QLocalSocket* caller = server.nextPendingConnection()) {
        connect(caller, &QLocalSocket::disconnected, caller, &QObject::deleteLater);
        connect(caller, &QLocalSocket::readyRead, caller, [caller] {
            while (caller->canReadLine()) {
                const QString question = QString::fromUtf8(caller->readLine()).trimmed();
                caller->write(QJsonDocument(answer(question)).toJson(QJsonDocument::Compact) + '\n');
                caller->flush();
            }
        });
    }
}

QJsonObject Probe::answer(const QString& question) {
    const QString verb = question.section(' ', 0, 0);
    if (verb == "find")
        return find(question.section(' ', 1));
    if (verb == "windows")
        return windows();
    return {{"error", "unknown question"}};
}

QJsonObject Probe::find(const QString& target) {
    const QString name = target.section('#', 0, 0);
    QWidget* widget = widgetNamed(name);
    if (!widget || qobject_cast<QMenu*>(widget)) // a menu is pressed where its title stands
        return findAction(name);
    if (!target.contains('#'))
        return place(widget, widget->rect());
    const QString part = target.section('#', 1);
    return placeOfPart(widget, part.section(':', 0, 0), part.section(':', 1));
}

QJsonObject Probe::windows() {
    QJsonArray list;
    const QWidgetList all = QApplication::topLevelWidgets();
    for (const QWidget* widget : all) {
        if (!widget->isVisible() || widget->windowType() == Qt::ToolTip)
            continue;
        list.append(QJsonObject{{"name", widget->objectName()},
                                {"class", widget->metaObject()->className()},
                                {"title", widget->windowTitle()},
                                {"text", textOf(widget)},
                                {"active", widget->isActiveWindow()}});
    }
    return {{"windows", list}};
}

QObject* ProbePlugin::create(const QString& key, const QString&) {
    const QString socket = qEnvironmentVariable("QUIVERDECK_TOUR_SOCKET");
    if (key != "tourprobe" || socket.isEmpty())
        return nullptr;
    return new Probe(socket);
}
