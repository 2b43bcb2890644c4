#include "monkey/Acts.h"

#include "monkey/Seen.h"
#include "platform/toolkit/Form.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QHeaderView>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QTabBar>
#include <QTest>
#include <QTextBrowser>
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

const QKeyCombination keys[] = {Qt::Key_Tab,          Qt::Key_Tab,          Qt::SHIFT | Qt::Key_Backtab,
                                Qt::Key_Return,       Qt::Key_Space,        Qt::Key_Escape,
                                Qt::Key_Delete,       Qt::Key_Backspace,    Qt::Key_F1,
                                Qt::Key_F2,           Qt::Key_F4,           Qt::Key_F6,
                                Qt::Key_F10,          Qt::Key_Menu,         Qt::Key_Up,
                                Qt::Key_Down,         Qt::Key_Left,         Qt::Key_Right,
                                Qt::Key_Home,         Qt::Key_End,          Qt::Key_PageUp,
                                Qt::Key_PageDown,     Qt::CTRL | Qt::Key_A, Qt::CTRL | Qt::Key_X,
                                Qt::CTRL | Qt::Key_C, Qt::CTRL | Qt::Key_V, Qt::CTRL | Qt::Key_Z,
                                Qt::CTRL | Qt::Key_Y, Qt::CTRL | Qt::Key_S, Qt::CTRL | Qt::Key_P};
/// The technician’s button.
constexpr QKeyCombination technician(Qt::CTRL | Qt::SHIFT, Qt::Key_F12);

/// How readily a control is taken; what ends a task less so than what goes on with it.
int weight(const QWidget& control) {
    static const std::pair<QRegularExpression, int> byName[] = {
        {QRegularExpression(u"^Principale/esci"_s), 1},
        {QRegularExpression(u"^Principale/(nuova|apri|nuovaDaModello|MenuPrincipale|test)$"_s), 25},
        {QRegularExpression(u"/(modifica|cmdConteggi|cmdTreeViewImage|cmdDragAndDrop|cmdSchedaCorpo2)$"_s),
         25},
        {QRegularExpression(u"^mdiScheda/(stampa|SalvaSuModello)$"_s), 4},
        {QRegularExpression(u"^mdiScheda/fine$"_s), 12},
        {QRegularExpression(u"/(EliminaEsercizio_|elimina$)"_s), 3},
        {QRegularExpression(u"/(LW|twImage|twFolder|BodyMap1|seleziona|cmdOk|CmdSave)$"_s), 12},
        {QRegularExpression(u"/(salva$|VS|MenuPrincipale|serie_|recupero|canvas|cmdZoom)"_s), 8},
        {QRegularExpression(u"/(qt_|client$|Frame|Label|eti)"_s), 1},
    };
    const QString place = windowOf(control) + u'/' + control.objectName();
    for (const auto& [name, heavy] : byName)
        if (name.match(place).hasMatch())
            return heavy;
    const bool button = qobject_cast<const QAbstractButton*>(&control) != nullptr;
    return control.focusPolicy() != Qt::NoFocus || button ? 5 : 1;
}

/// A child of another control is reached through it.
bool isPart(const QWidget& control) {
    const QWidget* parent = control.parentWidget();
    return qobject_cast<const QComboBox*>(parent) != nullptr ||
           qobject_cast<const QAbstractSpinBox*>(parent) != nullptr ||
           control.objectName() == u"qt_scrollarea_viewport" ||
           qobject_cast<const QHeaderView*>(&control) != nullptr;
}

bool isField(const QWidget& control) {
    const auto* combo = qobject_cast<const QComboBox*>(&control);
    return qobject_cast<const QLineEdit*>(&control) != nullptr ||
           qobject_cast<const QPlainTextEdit*>(&control) != nullptr ||
           qobject_cast<const QAbstractSpinBox*>(&control) != nullptr ||
           (combo != nullptr && combo->isEditable());
}

/// By name and not by address: the same in every run.
QWidgetList openWindows() {
    QWidgetList windows;
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->isVisible() && window->windowType() != Qt::ToolTip && window->isEnabled() &&
            !window->objectName().isEmpty())
            windows.append(window);
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
        const QPointer<QWidget> focus = QApplication::focusWidget();
        if (!focus || focus->window()->windowHandle() == nullptr)
            return;
        if (letter.unicode() < 128) {
            pressKey(focus->window()->windowHandle(), static_cast<Qt::Key>(letter.toUpper().unicode()),
                     letter);
        } else {
            QInputMethodEvent event;
            event.setCommitString(letter);
            QApplication::sendEvent(focus, &event);
        }
    }
}

} // namespace

void pressKey(QWindow* window, QKeyCombination keys, const QString& text) {
    const QPointer<QWindow> target(window);
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease})
        if (target)
            qt_handleKeyEvent(target, type, keys.key(), keys.keyboardModifiers(), text);
}

Act Hands::choose() {
    if (QWidget* popup = QApplication::activePopupWidget())
        return onPopup(*popup);
    if (QWidget* modal = QApplication::activeModalWidget()) {
        const auto buttons = modal->findChildren<QPushButton*>();
        if (qobject_cast<QMessageBox*>(modal) != nullptr && !buttons.isEmpty() && dice_.chance(90))
            return onControl(*dice_.pick(buttons));
        // The guide stays within reach.
        for (QWidget* window : openWindows())
            if (window->windowHandle()->transientParent() == modal->windowHandle() && dice_.chance(20))
                return onWindow(*window);
        return onWindow(*modal);
    }
    const QWidgetList windows = openWindows();
    if (windows.isEmpty())
        return {};
    return onWindow(*dice_.pick(windows));
}

Act Hands::onPopup(QWidget& popup) {
    // By keys alone: how a popup takes a click depends on how long ago it opened.
    const int steps = 1 + dice_.roll(8);
    const auto last = dice_.chance(75) ? Qt::Key_Return : Qt::Key_Escape;
    const auto way = dice_.chance(85) ? Qt::Key_Down : dice_.chance(50) ? Qt::Key_Right : Qt::Key_Up;
    return {windowOf(popup), u"popup: %1 steps of key %2, then key %3"_s.arg(steps).arg(way).arg(last),
            [target = QPointer<QWidget>(&popup), steps, way, last] {
                for (int step = 0; step < steps && target; ++step)
                    pressKey(target->windowHandle(), way);
                if (target)
                    pressKey(target->windowHandle(), last);
            }};
}

Act Hands::onWindow(QWidget& window) {
    const int kind = dice_.roll(100);
    if (kind < 10)
        return key(window, dice_.pick(keys));
    if (kind < 13)
        return wheel(window);
    if (kind < 15)
        return resize(window);
    if (kind < 16)
        return close(window);
    if (kind < 28 && window.objectName() == u"Principale") // rarely in reach
        return key(window, technician);
    std::vector<QWidget*> controls;
    std::vector<int> upTo;
    int sum = 0;
    for (QWidget* control : window.findChildren<QWidget*>()) {
        if (control->window() != &window || !control->isVisible() || !control->isEnabled() ||
            isPart(*control) || control->visibleRegion().isEmpty())
            continue;
        controls.push_back(control);
        upTo.push_back(sum += weight(*control));
    }
    if (controls.empty())
        return {};
    const int at = dice_.roll(sum);
    const auto found = std::upper_bound(upTo.begin(), upTo.end(), at) - upTo.begin();
    return onControl(*controls[static_cast<std::size_t>(found)]);
}

Act Hands::onControl(QWidget& control) {
    if (isField(control) && dice_.chance(70))
        return typeInto(control);
    if (auto* list = qobject_cast<QAbstractItemView*>(&control); list != nullptr && list->model() != nullptr)
        return onList(*list);
    if (auto* tabs = qobject_cast<QTabBar*>(&control); tabs != nullptr && tabs->count() > 0)
        return clickAt(control, tabs->tabRect(dice_.roll(tabs->count())).center());
    if (auto* menus = qobject_cast<QMenuBar*>(&control)) {
        const auto actions = menus->actions();
        return clickAt(control, menus->actionGeometry(dice_.pick(actions)).center());
    }
    if (qobject_cast<QAbstractButton*>(&control) != nullptr)
        return clickAt(control, QPoint(std::min(12, control.width() / 2), control.height() / 2));
    if (dice_.chance(qobject_cast<QAbstractSlider*>(&control) != nullptr ? 40 : 20)) {
        const QPoint from = somewhereIn(control); // in this order: the compiler's own would be any
        return dragFrom(control, from, somewhereIn(control));
    }
    return clickAt(control, somewhereIn(control), dice_.chance(10) ? 2 : 1);
}

Act Hands::onList(QAbstractItemView& list) {
    auto* header = list.findChild<QHeaderView*>();
    if (header != nullptr && header->isVisible() && dice_.chance(10))
        return clickAt(*header->viewport(), somewhereIn(*header->viewport()));
    std::vector<QRect> places; // of the lines that show
    const QRect all = list.viewport()->rect();
    for (int y = 4; y < all.height(); y += 6) {
        const QRect place = list.visualRect(list.indexAt(QPoint(all.width() / 3, y)));
        if (place.isValid() && (places.empty() || places.back() != place))
            places.push_back(place);
    }
    if (places.empty() || dice_.chance(8))
        return clickAt(*list.viewport(), somewhereIn(*list.viewport()));
    const QPoint where = dice_.pick(places).intersected(all).center();
    if (list.dragEnabled() && dice_.chance(75))
        return dragFrom(*list.viewport(), where, where + QPoint(-30, 10));
    return clickAt(*list.viewport(), where, dice_.chance(50) ? 2 : 1);
}

Act Hands::typeInto(QWidget& field) {
    static const QRegularExpression number(u"^(serie|recuperoMin|recuperoSec|FreqAllen)"_s);
    const bool asItShould = number.match(field.objectName()).hasMatch() && !dice_.chance(15);
    const QString text = asItShould ? QString::number(dice_.roll(6)) : dice_.pick(texts);
    const bool anew = dice_.chance(80);
    const bool paste = text.size() > 60 || dice_.chance(20);
    const QPoint where(std::min(6, field.width() / 2), field.height() / 2);
    Act act = clickAt(field, where);
    const auto click = act.run;
    act.what = u"%1 %2%3 '%4'"_s.arg(paste ? u"paste into"_s : u"type into"_s, nameOf(field),
                                     anew ? u" anew"_s : QString(), text.left(40));
    act.run = [click, text, anew, paste, target = QPointer<QWidget>(field.window())] {
        click();
        const auto onFocus = [&](Qt::Key key) {
            if (target && target->windowHandle() != nullptr)
                pressKey(target->windowHandle(), Qt::CTRL | key);
        };
        if (anew)
            onFocus(Qt::Key_A);
        if (paste) {
            QApplication::clipboard()->setText(text);
            onFocus(Qt::Key_V);
        } else {
            type(text);
        }
    };
    return act;
}

Act Hands::key(QWidget& window, QKeyCombination keys) {
    const int times = dice_.chance(80) ? 1 : 2 + dice_.roll(4);
    return {windowOf(window), u"key %1, %2 times"_s.arg(keys.toCombined(), 0, 16).arg(times),
            [target = QPointer<QWidget>(&window), keys, times] {
                for (int i = 0; i < times && target && target->windowHandle() != nullptr; ++i)
                    pressKey(target->windowHandle(), keys, keys.key() == Qt::Key_Space ? u" "_s : QString());
            }};
}

Act Hands::wheel(QWidget& window) {
    const QPoint where = somewhereIn(window);
    const int turn = (1 + dice_.roll(4)) * (dice_.chance(50) ? 120 : -120);
    return {windowOf(window), u"wheel %1 at %2"_s.arg(turn).arg(point(where)),
            [target = QPointer<QWidget>(&window), where, turn] {
                QWheelEvent event(where, target->mapToGlobal(where), {}, QPoint(0, turn), Qt::NoButton, {},
                                  Qt::NoScrollPhase, false);
                QApplication::sendEvent(target->windowHandle(), &event);
            }};
}

Act Hands::resize(QWidget& window) {
    const QSize size(200 + dice_.roll(1200), 150 + dice_.roll(900));
    const bool maximize = dice_.chance(25);
    return {windowOf(window), u"resize to %1x%2, %3"_s.arg(size.width()).arg(size.height()).arg(maximize),
            [target = QPointer<QWidget>(&window), size, maximize] {
                if (target->minimumSize() == target->maximumSize())
                    return; // a window manager offers nothing else
                target->setWindowState(maximize ? Qt::WindowMaximized : Qt::WindowNoState);
                if (!maximize)
                    target->resize(size.expandedTo(target->minimumSize()).boundedTo(target->maximumSize()));
            }};
}

Act Hands::close(QWidget& window) {
    return {windowOf(window), u"close"_s,
            [target = QPointer<QWidget>(&window)] { target->windowHandle()->close(); }};
}

Act Hands::clickAt(QWidget& control, const QPoint& where, int times) {
    return {windowOf(control),
            u"%1 %2 at %3"_s.arg(times > 1 ? u"double click"_s : u"click"_s, nameOf(control), point(where)),
            [this, target = QPointer<QWidget>(&control), where, times] {
                timestamp_ += 5000;
                for (int i = 0; i < times && target; ++i) {
                    mouse(*target, QEvent::MouseButtonPress, where);
                    if (target)
                        mouse(*target, QEvent::MouseButtonRelease, where);
                }
            }};
}

Act Hands::dragFrom(QWidget& control, const QPoint& from, const QPoint& to) {
    return {windowOf(control), u"drag %1 from %2 to %3"_s.arg(nameOf(control), point(from), point(to)),
            [this, target = QPointer<QWidget>(&control), from, to] {
                timestamp_ += 5000;
                mouse(*target, QEvent::MouseButtonPress, from);
                dragging_ = true; // a drag with a payload runs a loop of its own, which asks for `drop`
                for (int step = 1; step <= 3 && target && dragging_; ++step)
                    mouse(*target, QEvent::MouseMove, from + (to - from) * step / 3);
                if (std::exchange(dragging_, false) && target)
                    mouse(*target, QEvent::MouseButtonRelease, to);
            }};
}

Act Hands::drop() {
    std::vector<QWidget*> targets;
    for (QWidget* window : openWindows()) {
        for (QWidget* control : window->findChildren<QWidget*>())
            if (control->acceptDrops() && control->isVisible() &&
                control->objectName().startsWith("figura"_L1))
                targets.push_back(control);
    }
    QWidget* window = QApplication::activeWindow();
    QWidget* target = !targets.empty() && dice_.chance(85) ? dice_.pick(targets) : window;
    if (target == nullptr)
        return {};
    const QPoint where = somewhereIn(*target);
    return {windowOf(*target), u"drop on %1 at %2"_s.arg(nameOf(*target), point(where)),
            [this, where, control = QPointer<QWidget>(target)] {
                dragging_ = false;
                mouse(*control, QEvent::MouseMove, where);
                if (control)
                    mouse(*control, QEvent::MouseMove, where + QPoint(1, 0));
                if (control)
                    mouse(*control, QEvent::MouseButtonRelease, where);
            }};
}

QPoint Hands::somewhereIn(const QWidget& control) {
    const int x = dice_.roll(control.width());
    return {x, dice_.roll(control.height())};
}

/// Through the window, as the pointer does: what lies there takes it.
void Hands::mouse(QWidget& control, QEvent::Type type, const QPoint& where) {
    QWindow* window = control.window()->windowHandle();
    if (window == nullptr)
        return;
    const QPointF place = control.mapTo(control.window(), where);
    const bool move = type == QEvent::MouseMove;
    if (!move)
        held_ = type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton;
    timestamp_ += 10;
    qt_handleMouseEvent(window, place, window->mapToGlobal(place.toPoint()), held_,
                        move ? Qt::NoButton : Qt::LeftButton, type, Qt::NoModifier, timestamp_);
}

} // namespace monkey
