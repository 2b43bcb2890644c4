#pragma once

#include <QString>

// What a record needs of a control, and no more. The windows' controls implement these.

namespace host {

/// A choice list: its items, counted from 0, and the text it shows.
class ItemList {
public:
    virtual ~ItemList() = default;
    virtual void addItem(const QString& text) = 0;
    virtual int count() const = 0;
    virtual QString item(int index) const = 0;
    virtual QString text() const = 0;
};

/// A list of items with ticks, counted from 0.
class CheckList {
public:
    virtual ~CheckList() = default;
    virtual int count() const = 0;
    virtual bool checked(int index) const = 0;
    virtual void setChecked(int index, bool on) = 0;
};

/// A list of lines with columns, both counted from 0; column 0 is the item's own text.
class ReportLines {
public:
    virtual ~ReportLines() = default;
    virtual int count() const = 0;
    virtual QString cell(int line, int column) const = 0;
    virtual void select(int line) = 0;
};

/// A status bar with keyed panels. A missing key raises runtime::ElementNotFound.
class PanelText {
public:
    virtual ~PanelText() = default;
    virtual QString panel(const QString& key) const = 0;
    virtual void setPanel(const QString& key, const QString& text) = 0;
};

/// The rectangle of a control, in twips.
class Box {
public:
    virtual ~Box() = default;
    virtual double left() const = 0;
    virtual double top() const = 0;
    virtual double width() const = 0;
    virtual double height() const = 0;
    virtual void setLeft(double twips) = 0;
    virtual void setTop(double twips) = 0;
    virtual void setWidth(double twips) = 0;
    virtual void setHeight(double twips) = 0;
    virtual void setVisible(bool visible) = 0;
    virtual void refresh() = 0;
};

/// A scroll bar's value and range.
class ScrollValue {
public:
    virtual ~ScrollValue() = default;
    virtual int value() const = 0;
    virtual void setValue(int value) = 0;
    virtual int minimum() const = 0;
    virtual int maximum() const = 0;
};

} // namespace host
