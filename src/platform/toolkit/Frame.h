#pragma once

#include <QWidget>

namespace toolkit {

/// A container with a thin border and, if it has one, a caption in it. Children are placed from its own
/// corner.
class Frame : public QWidget {
    Q_OBJECT
public:
    explicit Frame(const QString& name, QWidget* parent, const QString& caption = {});

    QString caption() const { return caption_; }
    void setBorder(bool border);

Q_SIGNALS:
    void clicked();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    QString caption_;
    bool border_ = true;
};

} // namespace toolkit
