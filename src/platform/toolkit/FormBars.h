#pragma once

#include <QList>
#include <QRect>

class QWidget;

namespace toolkit {

/// The bars of a form: each takes the full width, above or below the area of the controls. In pixels.
class FormBars {
public:
    void addTop(QWidget* bar) { top_.append(bar); }
    void addBottom(QWidget* bar) { bottom_.append(bar); }
    /// The height of all bars together.
    int height() const;
    /// Places the bars in a form of that size; what is left between them comes back.
    QRect arrange(const QSize& form) const;

private:
    QList<QWidget*> top_;
    QList<QWidget*> bottom_;
};

} // namespace toolkit
