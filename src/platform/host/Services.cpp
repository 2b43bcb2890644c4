#include "platform/host/Services.h"

#include "platform/runtime/Error.h"

using namespace Qt::StringLiterals;

namespace host {

namespace {

template <class Service> Service*& installed() {
    static Service* service = nullptr;
    return service;
}

template <class Service> Service& required() {
    if (!installed<Service>())
        runtime::raise(runtime::InvalidCall, u"Servizio del desktop non disponibile"_s);
    return *installed<Service>();
}

} // namespace

Boxes& boxes() {
    return required<Boxes>();
}

FileDialogs& fileDialogs() {
    return required<FileDialogs>();
}

Cursor& cursor() {
    return required<Cursor>();
}

void setBoxes(Boxes* service) {
    installed<Boxes>() = service;
}

void setFileDialogs(FileDialogs* service) {
    installed<FileDialogs>() = service;
}

void setCursor(Cursor* service) {
    installed<Cursor>() = service;
}

void message(const QString& text, Icon icon) {
    boxes().show(icon, text, Buttons::Ok);
}

Answer ask(const QString& text, Icon icon, Buttons buttons) {
    return boxes().show(icon, text, buttons);
}

} // namespace host
