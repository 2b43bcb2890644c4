#include "core/ModuloBase.h"

#include "platform/host/Application.h"
#include "platform/host/ProgramDirectory.h"
#include "platform/host/Settings.h"
#include "platform/runtime/Dates.h"

using namespace Qt::StringLiterals;

namespace ModuloBase {

namespace {

constexpr qint64 serialeDelNullo = 29221; // 1 January 1980

} // namespace

QString nullToStringa(const runtime::Variant& valore) {
    return valore.isNull() ? QString() : valore.toText();
}

QDateTime nullToData(const runtime::Variant& valore) {
    return valore.isNull() ? runtime::atMidnight(runtime::dateFromSerial(serialeDelNullo))
                           : valore.toDateTime();
}

quint8 nullToByte(const runtime::Variant& valore) {
    return valore.isNull() ? quint8{0} : valore.toByte();
}

void salvaPercorso() {
    host::saveSetting(u"General"_s, u"Path"_s, host::programDirectory());
}

QString rigaDiAvvio() {
    return u" **** Application START - %1 versione %2"_s.arg(host::title(), host::versionText());
}

QString nomeArchivio() {
    return u"splash.ps"_s;
}

QString fileGuida() {
    return host::joined(u"\\HELP\\HELP.hlp"_s);
}

} // namespace ModuloBase
