#include "support/ScriptedBoxes.h"

#include <QDebug>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

bool offers(host::Buttons buttons, host::Answer answer) {
    switch (answer) {
    case host::Answer::Ok:
        return buttons == host::Buttons::Ok;
    case host::Answer::Cancel:
        return buttons == host::Buttons::YesNoCancel;
    default:
        return buttons != host::Buttons::Ok;
    }
}

host::Answer dismissal(host::Buttons buttons) {
    switch (buttons) {
    case host::Buttons::Ok:
        return host::Answer::Ok;
    case host::Buttons::YesNo:
        return host::Answer::No;
    default:
        return host::Answer::Cancel;
    }
}

} // namespace

ScriptedBoxes::ScriptedBoxes()
    : onUnexpected([](const QString& report) { QTest::qFail(qPrintable(report), __FILE__, __LINE__); }) {
    host::setBoxes(this);
}

ScriptedBoxes::~ScriptedBoxes() {
    host::setBoxes(nullptr);
}

void ScriptedBoxes::expect(host::Icon icon, const QString& text, host::Answer answer) {
    expected_.push_back({icon, text, answer, true});
}

void ScriptedBoxes::expectBeginning(host::Icon icon, const QString& beginning, host::Answer answer) {
    expected_.push_back({icon, beginning, answer, false});
}

bool ScriptedBoxes::satisfied() {
    for (const Expectation& missing : expected_)
        qWarning() << "the box never came:" << missing.text;
    const bool good = expected_.empty() && unexpected_ == 0;
    expected_.clear();
    unexpected_ = 0;
    return good;
}

host::Answer ScriptedBoxes::show(host::Icon icon, const QString& text, host::Buttons buttons) {
    if (!expected_.empty()) {
        const Expectation next = expected_.front();
        const bool sameText = next.whole ? text == next.text : text.startsWith(next.text);
        if (sameText && icon == next.icon && offers(buttons, next.answer)) {
            expected_.pop_front();
            return next.answer;
        }
    }
    ++unexpected_;
    onUnexpected(
        u"unexpected box, icon %1, buttons %2: \"%3\"; expected: \"%4\""_s.arg(static_cast<int>(icon))
            .arg(static_cast<int>(buttons))
            .arg(text, expected_.empty() ? u"none"_s : expected_.front().text));
    return dismissal(buttons);
}
