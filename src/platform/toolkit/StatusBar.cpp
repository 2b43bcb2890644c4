#include "platform/toolkit/StatusBar.h"

#include "platform/runtime/Error.h"
#include "platform/toolkit/Twips.h"

#include <QHBoxLayout>
#include <QLabel>

namespace toolkit {

StatusBar::StatusBar(const QString& name, QWidget* parent) : QFrame(parent), row_(new QHBoxLayout(this)) {
    setObjectName(name);
    row_->setContentsMargins(6, 1, 6, 1);
    row_->setSpacing(8);
}

void StatusBar::addPanel(const QString& key, double width, Qt::Alignment alignment) {
    auto* label = new QLabel(this);
    label->setObjectName(key);
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(alignment | Qt::AlignVCenter);
    label->setMinimumWidth(0);
    if (width > 0) {
        label->setFixedWidth(toPixels(width));
        row_->addWidget(label);
    } else {
        label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
        row_->addWidget(label, 1);
    }
}

QLabel& StatusBar::label(const QString& key) const {
    auto* found = findChild<QLabel*>(key, Qt::FindDirectChildrenOnly);
    if (found == nullptr || key.isEmpty())
        runtime::raise(runtime::ElementNotFound, {}, key);
    return *found;
}

QString StatusBar::panel(const QString& key) const {
    return label(key).text();
}

void StatusBar::setPanel(const QString& key, const QString& text) {
    label(key).setText(text);
}

} // namespace toolkit
