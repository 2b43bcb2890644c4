#include "platform/toolkit/FormBars.h"

#include <QWidget>
#include <algorithm>
#include <numeric>

namespace toolkit {

int FormBars::height() const {
    const auto add = [](int sum, const QWidget* bar) { return sum + bar->sizeHint().height(); };
    return std::accumulate(bottom_.begin(), bottom_.end(), std::accumulate(top_.begin(), top_.end(), 0, add),
                           add);
}

QRect FormBars::arrange(const QSize& form) const {
    int top = 0;
    for (QWidget* bar : top_) {
        const int height = bar->sizeHint().height();
        bar->setGeometry(0, top, form.width(), height);
        top += height;
    }
    int bottom = form.height();
    for (auto bar = bottom_.rbegin(); bar != bottom_.rend(); ++bar) {
        const int height = (*bar)->sizeHint().height();
        bottom -= height;
        (*bar)->setGeometry(0, bottom, form.width(), height);
    }
    return {0, top, form.width(), std::max(0, bottom - top)};
}

} // namespace toolkit
