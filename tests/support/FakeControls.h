#pragma once

#include "platform/host/Controls.h"
#include "platform/host/Services.h"
#include "platform/runtime/Error.h"

#include <QHash>
#include <QStringList>

#include <vector>

// Controls of plain data, for tests of what a record does with one.

class FakeItemList : public host::ItemList {
public:
    void addItem(const QString& text) override { items.append(text); }
    int count() const override { return static_cast<int>(items.size()); }
    QString item(int index) const override { return items.at(index); }
    QString text() const override { return shown; }

    QStringList items;
    QString shown;
};

class FakeCheckList : public host::CheckList {
public:
    explicit FakeCheckList(int count) : ticks(static_cast<std::size_t>(count)) {}
    int count() const override { return static_cast<int>(ticks.size()); }
    bool checked(int index) const override { return ticks.at(static_cast<std::size_t>(index)); }
    void setChecked(int index, bool on) override { ticks.at(static_cast<std::size_t>(index)) = on; }

    std::vector<bool> ticks;
};

/// The mouse where the test puts it.
class FakeCursor : public host::Cursor {
public:
    FakeCursor() { host::setCursor(this); }
    ~FakeCursor() override { host::setCursor(nullptr); }
    FakeCursor(const FakeCursor&) = delete;
    FakeCursor& operator=(const FakeCursor&) = delete;
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

class FakeBox : public host::Box {
public:
    FakeBox(double l, double t, double w, double h) : l_(l), t_(t), w_(w), h_(h) {}
    double left() const override { return l_; }
    double top() const override { return t_; }
    double width() const override { return w_; }
    double height() const override { return h_; }
    void setLeft(double twips) override { l_ = twips; }
    void setTop(double twips) override { t_ = twips; }
    void setWidth(double twips) override { w_ = twips; }
    void setHeight(double twips) override { h_ = twips; }
    void setVisible(bool on) override { visible = on; }
    void refresh() override { ++refreshed; }

    bool visible = false;
    int refreshed = 0;

private:
    double l_, t_, w_, h_;
};
