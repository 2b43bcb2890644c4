#pragma once

#include <QPointer>

namespace toolkit {

/// The shared instance of a form class: `class UtentiNuovo : public Form, public Shared<UtentiNuovo>`.
/// It comes into being, in its design state, when first named; once unloaded it is gone, and the next naming
/// starts afresh. Forms still there at the end are destroyed before the application.
template <class T> class Shared {
public:
    static T& comune() {
        if (!esiste())
            instance = new T; // the form registers itself; see Form::destroyAll
        return *instance;
    }

    /// Whether the class has an instance now; naming it by comune() would make one.
    static bool esiste() { return !instance.isNull() && !instance->isGone(); }

private:
    static inline QPointer<T> instance;
};

} // namespace toolkit
