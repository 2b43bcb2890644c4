#pragma once

#include "printing/Surface.h"

#include <QWidget>

/// The white sheet of a preview: shows a surface, and tells of the mouse over the elements that react.
class Foglio : public QWidget {
    Q_OBJECT
public:
    /// `surface` must outlive this. `sensibili` names the elements over which the mouse counts; the bare
    /// paper counts always, and every other element swallows the mouse.
    Foglio(const QString& name, QWidget* parent, const sheet::Surface& surface, QStringList sensibili);

    QSize sizeHint() const override;

Q_SIGNALS:
    /// A move of the mouse, with its buttons: 1 left, 2 right, 4 middle, added up.
    void mouseMoved(qint16 Button);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    bool reagisce(const QPointF& pixel) const;

    const sheet::Surface& surface_;
    QStringList sensibili_;
    bool premuto_ = false;         ///< a button is held; the element it was pressed on keeps the mouse
    bool premutoReagisce_ = false; ///< and that element reacts
};
