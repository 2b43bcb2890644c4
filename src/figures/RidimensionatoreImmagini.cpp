#include "figures/RidimensionatoreImmagini.h"

#include "platform/host/Controls.h"
#include "platform/runtime/Error.h"

#include <cmath>

void RidimensionatoreImmagini::setImage(host::Box& img) {
    img_ = &img;
    top_ = img.top();
    left_ = img.left();
}

void RidimensionatoreImmagini::ridimensiona() {
    if (!img_)
        runtime::raise(runtime::ObjectNotSet);
    const auto limite = static_cast<double>(static_cast<float>(MAX)); // compared in single precision
    if (limite < img_->height()) {
        const double p = (img_->height() - MAX) * 100 / img_->height();
        img_->setHeight(MAX);
        img_->setWidth(img_->width() - std::floor(img_->width() * p / 100));
    }
    if (limite < img_->width()) {
        const double p = (img_->width() - MAX) * 100 / img_->width();
        img_->setWidth(MAX);
        img_->setHeight(img_->height() - std::floor(img_->height() * p / 100));
    }
    img_->setVisible(true);
    img_->refresh();
    img_->setTop((MAX - img_->height()) / 2 + top_);
    img_->setLeft((MAX - img_->width()) / 2 + left_);
}
