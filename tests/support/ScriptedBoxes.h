#pragma once

#include "platform/host/Services.h"

#include <QString>

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
    ScriptedBoxes();
    ~ScriptedBoxes() override;
    ScriptedBoxes(const ScriptedBoxes&) = delete;
    ScriptedBoxes& operator=(const ScriptedBoxes&) = delete;

    void expect(host::Icon icon, const QString& text, host::Answer answer = host::Answer::Ok);
    /// For a text of which only the beginning is fixed.
    void expectBeginning(host::Icon icon, const QString& beginning, host::Answer answer = host::Answer::Ok);

    /// True if every expectation was met and no other box came; tells of the rest. Starts anew either way.
    [[nodiscard]] bool satisfied();

    /// What happens on an unexpected box, the test's failure by default. The box then answers as if it had
    /// been dismissed.
    std::function<void(const QString&)> onUnexpected;

    host::Answer show(host::Icon icon, const QString& text, host::Buttons buttons) override;

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
