#pragma once

#include <QEvent>
#include <QPointer>
#include <QString>
#include <QWidget>

#include <functional>
#include <random>

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

/// On a window that still stands.
void pressKey(const QPointer<QWidget>& window, QKeyCombination keys, const QString& text = {});

/// Acts at random on the windows that take input.
class Hands {
public:
    /// Hears of each act before it is done.
    using Tell = std::function<void(const QWidget& control, const QString& what)>;
    Hands(Dice& dice, Tell tell) : dice_(dice), tell_(std::move(tell)) {}

    /// A random act on the window in front; what hangs on the pointer is dropped. Nothing where nothing takes
    /// the user's input.
    void act();
    bool dragging() const { return dragging_; }

private:
    void drop();
    void steer(QWidget& popup);
    void onWindow(QWidget& window);
    void onControl(QWidget& control);
    void onList(QAbstractItemView& list);
    void typeInto(QWidget& field);
    void key(QWidget& window, const QString& name);
    void wheel(QWidget& window);
    void resize(QWidget& window);
    void click(QWidget& control, const QPoint& where, int times = 1);
    void drag(QWidget& control, const QPoint& from, const QPoint& to);
    QPoint somewhereIn(const QWidget& control);
    void press(const QPointer<QWidget>& control, const QPoint& where);
    void mouse(const QPointer<QWidget>& control, QEvent::Type type, const QPoint& where);

    Dice& dice_;
    Tell tell_;
    bool dragging_ = false;
    Qt::MouseButtons held_;
    int timestamp_ = 1000; ///< milliseconds; far enough apart that two clicks are no double click
};

} // namespace monkey
