#pragma once

#include <QPointer>
#include <QString>
#include <QWidget>
#include <QWindow>

#include <functional>
#include <random>
#include <vector>

class QAbstractItemView;

namespace monkey {

/// Random numbers that are the same everywhere: no library distribution.
class Dice {
public:
    explicit Dice(std::uint32_t seed) : engine_(seed) {}
    /// From 0 to sides - 1.
    int roll(int sides) {
        return sides <= 1 ? 0 : static_cast<int>(engine_() % static_cast<unsigned>(sides));
    }
    bool chance(int percent) { return roll(100) < percent; }
    template <class List> const auto& pick(const List& list) {
        return list[static_cast<std::size_t>(roll(static_cast<int>(std::size(list))))];
    }

private:
    std::mt19937 engine_;
};

/// An act that was chosen: where, what, and how to do it.
struct Act {
    QString window;
    QString what;
    std::function<void()> run;
};

void pressKey(QWindow* window, QKeyCombination keys, const QString& text = {});

/// Chooses acts on the windows that take input. Nothing is done before `Act::run`.
class Hands {
public:
    explicit Hands(Dice& dice) : dice_(dice) {}

    /// A random act on the window in front.
    Act choose();
    /// Drops what hangs on the pointer, mostly on a picture of an exercise.
    Act drop();
    bool dragging() const { return dragging_; }

private:
    Act onPopup(QWidget& popup);
    Act onWindow(QWidget& window);
    Act onControl(QWidget& control);
    Act onList(QAbstractItemView& list);
    Act typeInto(QWidget& field);
    Act key(QWidget& window, QKeyCombination keys);
    Act wheel(QWidget& window);
    Act resize(QWidget& window);
    Act close(QWidget& window);
    Act clickAt(QWidget& control, const QPoint& where, int times = 1);
    Act dragFrom(QWidget& control, const QPoint& from, const QPoint& to);
    QPoint somewhereIn(const QWidget& control);
    void mouse(QWidget& control, QEvent::Type type, const QPoint& where);

    Dice& dice_;
    bool dragging_ = false;
    Qt::MouseButtons held_;
    int timestamp_ = 1000; ///< milliseconds; far enough apart that two clicks are no double click
};

} // namespace monkey
