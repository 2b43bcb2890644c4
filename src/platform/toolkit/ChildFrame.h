#pragma once

#include <QMdiSubWindow>

namespace toolkit {

class Form;

/// The slim frame of a child page (title 22 pixels, sides and bottom 2). Its close box takes the unload way.
class ChildFrame : public QMdiSubWindow {
    Q_OBJECT
public:
    explicit ChildFrame(Form& page);

    static constexpr int titleHeight = 22;
    static constexpr int border = 2;

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    Form& page_;
};

} // namespace toolkit
