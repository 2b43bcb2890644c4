#pragma once

#include "platform/host/Services.h"
#include "support/Installed.h"

#include <QDebug>
#include <QTest>

#include <functional>

/// Message boxes for tests: what will be asked, and the answer, is stated in advance and in order. A box
/// that was not expected fails the test at once; one that was expected and never came fails `satisfied`.
///
///     ScriptedBoxes boxes;
///     boxes.expect(host::Icon::Critical, "Confermi?", host::Answer::Yes);
///     ...
///     QVERIFY(boxes.satisfied());
class ScriptedBoxes : public Installed<host::Boxes, host::setBoxes> {
public:
    void expect(host::Icon icon, const QString& text, host::Answer answer = host::Answer::Ok) {
        expected_.append({icon, text, answer, true});
    }
    /// For a text of which only the beginning is fixed.
    void expectBeginning(host::Icon icon, const QString& beginning, host::Answer answer = host::Answer::Ok) {
        expected_.append({icon, beginning, answer, false});
    }

    /// True if every expectation was met; tells of the rest. Starts anew either way.
    [[nodiscard]] bool satisfied() {
        for (const Expectation& missing : expected_)
            qWarning() << "the box never came:" << missing.text;
        return std::exchange(expected_, {}).isEmpty();
    }

    /// What happens on an unexpected box, the test's failure by default. The box then answers as if it had
    /// been dismissed.
    std::function<void(const QString&)> onUnexpected = [](const QString& report) {
        QTest::qFail(qPrintable(report), __FILE__, __LINE__);
    };

    host::Answer show(host::Icon icon, const QString& text, host::Buttons buttons) override {
        if (!expected_.isEmpty()) {
            const Expectation next = expected_.first();
            const bool sameText = next.whole ? text == next.text : text.startsWith(next.text);
            const bool canAnswer = (buttons == host::Buttons::Ok) == (next.answer == host::Answer::Ok);
            if (sameText && icon == next.icon && canAnswer) {
                expected_.removeFirst();
                return next.answer;
            }
        }
        onUnexpected(QStringLiteral("unexpected box, icon %1, buttons %2: \"%3\"")
                         .arg(static_cast<int>(icon))
                         .arg(static_cast<int>(buttons))
                         .arg(text));
        return buttons == host::Buttons::YesNo ? host::Answer::No : host::Answer::Cancel;
    }

private:
    struct Expectation {
        host::Icon icon;
        QString text;
        host::Answer answer;
        bool whole;
    };

    QList<Expectation> expected_;
};
