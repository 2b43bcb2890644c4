#pragma once

#include "platform/host/Controls.h"

#include <QFrame>

class QHBoxLayout;
class QLabel;

namespace toolkit {

/// A bar of keyed panels at a window's bottom.
class StatusBar : public QFrame, public host::PanelText {
    Q_OBJECT
public:
    StatusBar(const QString& name, QWidget* parent);

    /// `width` in twips; 0 takes the free room.
    void addPanel(const QString& key, double width = 0, Qt::Alignment alignment = Qt::AlignLeft);
    QString panel(const QString& key) const override;
    void setPanel(const QString& key, const QString& text) override;

    static constexpr int barHeight = 22; ///< pixels
    QSize sizeHint() const override { return {100, barHeight}; }

private:
    QLabel& label(const QString& key) const;

    QHBoxLayout* row_;
};

} // namespace toolkit
