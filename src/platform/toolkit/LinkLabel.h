#pragma once

#include "platform/toolkit/Label.h"

#include <QUrl>

namespace toolkit {

/// A caption that opens an address with the desktop's handler: by a click, or by Enter or the space bar when
/// Tab has reached it. Takes no notice of the result.
class LinkLabel : public Label {
    Q_OBJECT
public:
    LinkLabel(const QString& name, const QString& caption, const QUrl& target, QWidget* parent);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
};

} // namespace toolkit
