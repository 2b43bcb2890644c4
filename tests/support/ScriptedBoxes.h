#pragma once

#include "platform/host/Services.h"

#include <QDebug>
#include <QTest>

#include <deque>
#include <functional>

/// Message boxes for tests: what will be asked, and the answer, is stated in advance and in order. A box
/// that was not expected fails the test at once; one that was expected and never came fails `satisfied`.
///
///     ScriptedBoxes boxes;
///     boxes.expect(host::Icon::Critical, "Confermi?", host::Answer::Yes);
///     ...
///     QVERIFY(boxes.satisfied());
class ScriptedBoxes : public host::Boxes {
public:
    /// Installs itself, until it is destroyed.
    ScriptedBoxes() { host::setBoxes(this); }
    ~ScriptedBoxes() override { host::setBoxes(nullptr); }
    ScriptedBoxes(const ScriptedBoxes&) = delete;
    ScriptedBoxes& operator=(const ScriptedBoxes&) = delete;

    void expect(host::Icon icon, const QString& text, host::Answer answer = host::Answer::Ok) {
        expected_.push_back({icon, text, answer, true});
    }
    /// For a text of which only the beginning is fixed.
    void expectBeginning(host::Icon icon, const QString& beginning, host::Answer answer = host::Answer::Ok) {
        expected_.push_back({icon, beginning, answer, false});
    }

    /// True if every expectation was met and no other box came; tells of the rest. Starts anew either way.
    [[nodiscard]] bool satisfied() {
        for (const Expectation& missing : expected_)
            qWarning() << "the box never came:" << missing.text;
        const bool good = expected_.empty() && unexpected_ == 0;
        expected_.clear();
        unexpected_ = 0;
        return good;
    }

    /// What happens on an unexpected box, the test's failure by default. The box then answers as if it had
    /// been dismissed.
    std::function<void(const QString&)> onUnexpected = [](const QString& report) {
        QTest::qFail(qPrintable(report), __FILE__, __LINE__);
    };

    host::Answer show(host::Icon icon, const QString& text, host::Buttons buttons) override {
        using host::Answer;
        using host::Buttons;
        const Answer dismissal = buttons == Buttons::Ok      ? Answer::Ok
                                 : buttons == Buttons::YesNo ? Answer::No
                                                             : Answer::Cancel;
        if (!expected_.empty()) {
            const Expectation next = expected_.front();
            const bool asks =
                buttons != Buttons::Ok && (next.answer == Answer::Yes || next.answer == Answer::No);
            const bool sameText = next.whole ? text == next.text : text.startsWith(next.text);
            if (sameText && icon == next.icon && (asks || next.answer == dismissal)) {
                expected_.pop_front();
                return next.answer;
            }
        }
        ++unexpected_;
        onUnexpected(QStringLiteral("unexpected box, icon %1, buttons %2: \"%3\"; expected: \"%4\"")
                         .arg(static_cast<int>(icon))
                         .arg(static_cast<int>(buttons))
                         .arg(text, expected_.empty() ? QStringLiteral("none") : expected_.front().text));
        return dismissal;
    }

private:
    struct Expectation {
        host::Icon icon;
        QString text;
        host::Answer answer;
        bool whole;
    };

    std::deque<Expectation> expected_;
    int unexpected_ = 0;
};
