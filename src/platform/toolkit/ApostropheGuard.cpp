#include "platform/toolkit/ApostropheGuard.h"

namespace toolkit {

QString ApostropheGuard::guarded(QString text) {
    return text.replace(QLatin1Char('\''), QChar(0x2019));
}

QValidator::State ApostropheGuard::validate(QString& input, int& /*position*/) const {
    if (!paused_)
        input = guarded(input);
    return Acceptable;
}

} // namespace toolkit
