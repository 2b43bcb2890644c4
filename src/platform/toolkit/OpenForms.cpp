#include "platform/toolkit/OpenForms.h"

#include "platform/toolkit/Form.h"

#include <algorithm>

namespace toolkit {

OpenForms& OpenForms::all() {
    static OpenForms forms;
    return forms;
}

void OpenForms::remove(Form* form) {
    living_.removeAll(form);
    activations_.removeAll(form);
}

void OpenForms::activated(Form* form) {
    activations_.removeAll(form);
    activations_.append(form);
}

bool OpenForms::left(Form* form) {
    const bool wasLast = !activations_.isEmpty() && activations_.last() == form;
    activations_.removeAll(form);
    return wasLast;
}

Form* OpenForms::active() const {
    const auto last = std::find_if(activations_.rbegin(), activations_.rend(),
                                   [](const Form* form) { return form->isVisible(); });
    return last == activations_.rend() ? nullptr : *last;
}

} // namespace toolkit
