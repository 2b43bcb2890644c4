#pragma once

#include <QTabBar>

namespace toolkit {

/// A strip of keyed tabs, lying or upright at the left edge. Tabs are counted from 1. `clicked` tells the
/// user's choice of a tab (also of the one chosen already) and every `select` by program.
class TabStrip : public QTabBar {
    Q_OBJECT
public:
    enum class Direction { Lying, Upright };

    TabStrip(const QString& name, QWidget* parent, Direction direction = Direction::Lying);

    void addTab(const QString& key, const QString& caption, const QString& tip = {});
    int selectedIndex() const { return currentIndex() + 1; }
    QString selectedKey() const;
    QString key(int index) const;
    /// Raise runtime::ElementNotFound for a tab that is not there.
    void select(int index);
    void select(const QString& key);

Q_SIGNALS:
    void clicked();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    QSize tabSizeHint(int index) const override;
};

} // namespace toolkit
