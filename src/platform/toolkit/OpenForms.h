#pragma once

#include <QList>

namespace toolkit {

class Form;

/// The forms that live, and the order in which the top-level ones were last activated.
class OpenForms {
public:
    static OpenForms& all();

    void add(Form* form) { living_.append(form); }
    void remove(Form* form);
    /// The form made last, or nullptr.
    Form* newest() const { return living_.isEmpty() ? nullptr : living_.last(); }

    void activated(Form* form);
    /// True if no other form was activated after this one.
    bool left(Form* form);
    /// The form that was activated last and still shows, or nullptr.
    Form* active() const;

private:
    QList<Form*> living_;
    QList<Form*> activations_;
};

} // namespace toolkit
