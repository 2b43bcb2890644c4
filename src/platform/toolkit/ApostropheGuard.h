#pragma once

#include <QString>
#include <QValidator>

namespace toolkit {

/// Where a text goes into SQL unescaped, a straight apostrophe that the user types or pastes becomes the
/// typographic one, as in word processors; D'Amico then never meets a broken statement. Texts set by program
/// pass untouched, as long as the control pauses the guard meanwhile.
class ApostropheGuard : public QValidator {
    Q_OBJECT
public:
    using QValidator::QValidator;

    static QString guarded(QString text);

    void pause(bool paused) { paused_ = paused; }
    State validate(QString& input, int& position) const override;

private:
    bool paused_ = false;
};

} // namespace toolkit
