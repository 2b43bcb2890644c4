#include "monkey/Acts.h"

#include "monkey/Seen.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QInputMethodEvent>
#include <QKeySequence>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>
#include <QTabBar>
#include <QTest>
#include <QWheelEvent>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace monkey {

namespace {

const QStringList texts =
    u"Rossi|L'Aquila dell'Est|dice \"piano\"|perché è così – già|💪 e 汉字|0|3|12|45 sec|59|60|100|255|256|-1|"
    "999999999999|1e9|3,5|DELETE * FROM utenti #1/1/2005#|31/02/2026|'); DROP TABLE schede; --|%s%n\\0|   |"
    "&Apri|<b>x</b>"_s.split(u'|')
    << u"Una nota molto lunga, che va a capo più volte. "_s.repeated(40);

const QStringList keys =
    u"Tab|Tab|Shift+Backtab|Return|Space|Esc|Del|Backspace|F1|F2|F4|F6|F10|Menu|Up|Down|Left|Right|Home|End|"
    "PgUp|PgDown|Ctrl+A|Ctrl+X|Ctrl+C|Ctrl+V|Ctrl+Z|Ctrl+Y|Ctrl+S|Ctrl+P"_s.split(u'|');

/// How readily a control is taken; what ends a task less so than what goes on with it.
int weight(const QWidget& control) {
    static const std::pair<QRegularExpression, int> byName[] = {
        {QRegularExpression(u"^Principale/(nuova|apri|nuovaDaModello|MenuPrincipale|test)$|"
                            "/(modifica|cmdConteggi|cmdTreeViewImage|cmdDragAndDrop|cmdSchedaCorpo2)$"_s),
         25},
        {QRegularExpression(u"^mdiScheda/(stampa|SalvaSuModello)$|/(EliminaEsercizio_|elimina$)"_s), 4},
        {QRegularExpression(u"/(LW|twImage|twFolder|BodyMap1|seleziona|cmdOk|CmdSave|fine)$"_s), 12},
        {QRegularExpression(u"/(salva$|VS|MenuPrincipale|serie_|recupero|canvas|cmdZoom)"_s), 8},
        {QRegularExpression(u"^Principale/esci|/(qt_|client$|Frame|Label|eti)"_s), 1},
    };
    const QString place = windowOf(control) + u'/' + control.objectName();
    for (const auto& [name, heavy] : byName)
        if (name.match(place).hasMatch())
            return heavy;
    return control.focusPolicy() != Qt::NoFocus || control.inherits("QAbstractButton") ? 5 : 1;
}

/// A child of another control is reached through it.
bool isPart(const QWidget& control) {
    const QWidget* parent = control.parentWidget();
    return parent->inherits("QComboBox") || parent->inherits("QAbstractSpinBox") ||
           control.objectName() == u"qt_scrollarea_viewport" || control.inherits("QHeaderView");
}

bool isField(const QWidget& control) {
    return control.inherits("QLineEdit") || control.inherits("QPlainTextEdit") ||
           control.inherits("QAbstractSpinBox") || control.property("editable").toBool();
}

/// By name and not by address: the same in every run.
QWidgetList openWindows() {
    QWidgetList windows = QApplication::topLevelWidgets();
    windows.removeIf([](const QWidget* window) {
        return !window->isVisible() || window->windowType() == Qt::ToolTip || !window->isEnabled() ||
               window->objectName().isEmpty();
    });
    std::sort(windows.begin(), windows.end(), [](const QWidget* one, const QWidget* other) {
        return one->objectName() < other->objectName();
    });
    return windows;
}

QString point(const QPoint& where) {
    return u"%1,%2"_s.arg(where.x()).arg(where.y());
}

/// As the keyboard does: plain letters by keys, others as an input method commits them.
void type(const QString& text) {
    for (const QChar letter : text) {
        QWidget* focus = QApplication::focusWidget();
        if (focus == nullptr)
            return;
        if (letter.unicode() < 128) {
            pressKey(focus->window(), static_cast<Qt::Key>(letter.toUpper().unicode()), letter);
        } else {
            QInputMethodEvent event;
            event.setCommitString(letter);
            QApplication::sendEvent(focus, &event);
        }
    }
}

} // namespace

void pressKey(const QPointer<QWidget>& window, QKeyCombination keys, const QString& text) {
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease})
        if (window && window->windowHandle() != nullptr)
            qt_handleKeyEvent(window->windowHandle(), type, keys.key(), keys.keyboardModifiers(), text);
}

void Hands::act() {
    timestamp_ += 5000;
    if (dragging_)
        return drop();
    if (QWidget* popup = QApplication::activePopupWidget())
        return steer(*popup);
    const QWidgetList windows = openWindows();
    if (QWidget* modal = QApplication::activeModalWidget()) {
        const auto buttons = modal->findChildren<QPushButton*>();
        if (qobject_cast<QMessageBox*>(modal) != nullptr && !buttons.isEmpty() && dice_.chance(90))
            return onControl(*dice_.pick(buttons));
        // The guide stays within reach.
        for (QWidget* window : windows)
            if (window->windowHandle()->transientParent() == modal->windowHandle() && dice_.chance(20))
                return onWindow(*window);
        return onWindow(*modal);
    }
    if (!windows.isEmpty())
        onWindow(*dice_.pick(windows));
}

/// By keys alone: how a popup takes a click depends on how long ago it opened.
void Hands::steer(QWidget& popup) {
    const int steps = 1 + dice_.roll(8);
    const auto last = dice_.chance(75) ? Qt::Key_Return : Qt::Key_Escape;
    const auto way = dice_.chance(85) ? Qt::Key_Down : dice_.chance(50) ? Qt::Key_Right : Qt::Key_Up;
    tell_(popup, u"popup: %1 steps of key %2, then key %3"_s.arg(steps).arg(way).arg(last));
    const QPointer<QWidget> target(&popup);
    for (int step = 0; step < steps; ++step)
        pressKey(target, way);
    pressKey(target, last);
}

void Hands::onWindow(QWidget& window) {
    const int kind = dice_.roll(100);
    if (kind < 10)
        return key(window, dice_.pick(keys));
    if (kind < 13)
        return wheel(window);
    if (kind < 15)
        return resize(window);
    if (kind < 16) {
        tell_(window, u"close"_s);
        window.windowHandle()->close();
        return;
    }
    if (kind < 28 && window.objectName() == u"Principale")
        return key(window, u"Ctrl+Shift+F12"_s); // the technician's button
    QWidgetList controls;                        // each as often as it weighs
    for (QWidget* control : window.findChildren<QWidget*>())
        if (control->window() == &window && control->isVisible() && control->isEnabled() &&
            !isPart(*control) && !control->visibleRegion().isEmpty())
            controls += QWidgetList(weight(*control), control);
    if (!controls.isEmpty())
        onControl(*dice_.pick(controls));
}

void Hands::onControl(QWidget& control) {
    if (isField(control) && dice_.chance(70))
        return typeInto(control);
    if (auto* list = qobject_cast<QAbstractItemView*>(&control); list != nullptr && list->model() != nullptr)
        return onList(*list);
    if (auto* tabs = qobject_cast<QTabBar*>(&control); tabs != nullptr && tabs->count() > 0)
        return click(control, tabs->tabRect(dice_.roll(tabs->count())).center());
    if (auto* menus = qobject_cast<QMenuBar*>(&control))
        return click(control, menus->actionGeometry(dice_.pick(menus->actions())).center());
    if (control.inherits("QAbstractButton"))
        return click(control, QPoint(std::min(12, control.width() / 2), control.height() / 2));
    const QPoint where = somewhereIn(control);
    if (dice_.chance(control.inherits("QAbstractSlider") ? 40 : 20))
        return drag(control, where, somewhereIn(control));
    click(control, where, dice_.chance(10) ? 2 : 1);
}

void Hands::onList(QAbstractItemView& list) {
    QWidget& inside = *list.viewport();
    auto* header = list.findChild<QHeaderView*>();
    if (header != nullptr && header->isVisible() && dice_.chance(10))
        return click(*header->viewport(), somewhereIn(*header->viewport()));
    QList<QRect> places; // of the lines that show
    for (int y = 4; y < inside.height(); y += 6) {
        const QRect place = list.visualRect(list.indexAt(QPoint(inside.width() / 3, y)));
        if (place.isValid() && !places.contains(place))
            places.append(place);
    }
    if (places.isEmpty() || dice_.chance(8))
        return click(inside, somewhereIn(inside));
    const QPoint where = dice_.pick(places).intersected(inside.rect()).center();
    if (list.dragEnabled() && dice_.chance(75))
        return drag(inside, where, where + QPoint(-30, 10));
    click(inside, where, dice_.chance(50) ? 2 : 1);
}

void Hands::typeInto(QWidget& field) {
    static const QRegularExpression number(u"^(serie|recuperoMin|recuperoSec|FreqAllen)"_s);
    const bool asItShould = number.match(field.objectName()).hasMatch() && !dice_.chance(15);
    const QString text = asItShould ? QString::number(dice_.roll(6)) : dice_.pick(texts);
    const bool anew = dice_.chance(80);
    const bool paste = text.size() > 60 || dice_.chance(20);
    tell_(field,
          u"%1%2 '%3'"_s.arg(paste ? u"paste"_s : u"type"_s, anew ? u" anew"_s : QString(), text.left(40)));
    const QPointer<QWidget> window(field.window());
    press(&field, QPoint(std::min(6, field.width() / 2), field.height() / 2));
    if (anew)
        pressKey(window, Qt::CTRL | Qt::Key_A);
    if (!paste)
        return type(text);
    QApplication::clipboard()->setText(text);
    pressKey(window, Qt::CTRL | Qt::Key_V);
}

void Hands::key(QWidget& window, const QString& name) {
    const int times = dice_.chance(80) ? 1 : 2 + dice_.roll(4);
    tell_(window, u"key %1, %2 times"_s.arg(name).arg(times));
    const QPointer<QWidget> target(&window);
    for (int i = 0; i < times; ++i)
        pressKey(target, QKeySequence(name)[0], name == u"Space"_s ? u" "_s : QString());
}

void Hands::wheel(QWidget& window) {
    const QPoint where = somewhereIn(window);
    const int turn = (1 + dice_.roll(4)) * (dice_.chance(50) ? 120 : -120);
    tell_(window, u"wheel %1 at %2"_s.arg(turn).arg(point(where)));
    QWheelEvent event(where, window.mapToGlobal(where), {}, QPoint(0, turn), Qt::NoButton, {},
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(window.windowHandle(), &event);
}

void Hands::resize(QWidget& window) {
    const QSize size{200 + dice_.roll(1200), 150 + dice_.roll(900)};
    const bool maximize = dice_.chance(25);
    if (window.minimumSize() == window.maximumSize())
        return; // a window manager offers nothing else
    tell_(window, u"resize to %1x%2, %3"_s.arg(size.width()).arg(size.height()).arg(maximize));
    window.setWindowState(maximize ? Qt::WindowMaximized : Qt::WindowNoState);
    if (!maximize)
        window.resize(size);
}

void Hands::click(QWidget& control, const QPoint& where, int times) {
    tell_(control, u"click at %1, %2 times"_s.arg(point(where)).arg(times));
    const QPointer<QWidget> target(&control);
    for (int i = 0; i < times; ++i)
        press(target, where);
}

void Hands::drag(QWidget& control, const QPoint& from, const QPoint& to) {
    tell_(control, u"drag from %1 to %2"_s.arg(point(from), point(to)));
    const QPointer<QWidget> target(&control);
    mouse(target, QEvent::MouseButtonPress, from);
    dragging_ = true; // a drag with a payload runs a loop of its own, which asks for an act
    for (int step = 1; step <= 3 && dragging_; ++step)
        mouse(target, QEvent::MouseMove, from + (to - from) * step / 3);
    if (std::exchange(dragging_, false))
        mouse(target, QEvent::MouseButtonRelease, to);
}

/// Mostly on a picture of an exercise.
void Hands::drop() {
    static const QRegularExpression pictures(u"^figura"_s);
    QWidgetList targets;
    for (QWidget* window : openWindows())
        for (QWidget* control : window->findChildren<QWidget*>(pictures))
            if (control->acceptDrops() && control->isVisible())
                targets.append(control);
    const bool well = !targets.isEmpty() && dice_.chance(85);
    const QPointer<QWidget> target = well ? dice_.pick(targets) : QApplication::activeWindow();
    if (!target)
        return;
    const QPoint where = somewhereIn(*target);
    tell_(*target, u"drop at "_s + point(where));
    dragging_ = false;
    mouse(target, QEvent::MouseMove, where);
    mouse(target, QEvent::MouseMove, where + QPoint(1, 0));
    mouse(target, QEvent::MouseButtonRelease, where);
}

QPoint Hands::somewhereIn(const QWidget& control) {
    return QPoint{dice_.roll(control.width()), dice_.roll(control.height())}; // in this order
}

void Hands::press(const QPointer<QWidget>& control, const QPoint& where) {
    for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease})
        mouse(control, type, where);
}

/// Through the window, as the pointer does: what lies there takes it.
void Hands::mouse(const QPointer<QWidget>& control, QEvent::Type type, const QPoint& where) {
    QWindow* window = control ? control->window()->windowHandle() : nullptr;
    if (window == nullptr)
        return;
    const QPointF place = control->mapTo(control->window(), where);
    const bool move = type == QEvent::MouseMove;
    if (!move)
        held_ = type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton;
    timestamp_ += 10;
    qt_handleMouseEvent(window, place, window->mapToGlobal(place.toPoint()), held_,
                        move ? Qt::NoButton : Qt::LeftButton, type, Qt::NoModifier, timestamp_);
}

} // namespace monkey
