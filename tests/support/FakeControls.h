#pragma once

#include "platform/host/Controls.h"
#include "platform/host/Services.h"
#include "platform/runtime/Error.h"
#include "support/Installed.h"

#include <QHash>
#include <QList>

// Controls of plain data, for tests of what a record does with one.

class FakeCheckList : public host::CheckList {
public:
    explicit FakeCheckList(int count) : ticks(count) {}
    int count() const override { return static_cast<int>(ticks.size()); }
    bool checked(int index) const override { return ticks.at(index); }
    void setChecked(int index, bool on) override { ticks[index] = on; }

    QList<bool> ticks;
};

/// The mouse where the test puts it.
class FakeCursor : public Installed<host::Cursor, host::setCursor> {
public:
    QPoint position() override { return at; }

    QPoint at;
};

class FakePanels : public host::PanelText {
public:
    QString panel(const QString& key) const override { return texts.value(key); }
    void setPanel(const QString& key, const QString& text) override {
        if (!texts.contains(key))
            runtime::raise(runtime::ElementNotFound);
        texts[key] = text;
    }

    QHash<QString, QString> texts{{QStringLiteral("status"), QString()}};
};
