#include "core/Main.h"

#include "core/Finestre.h"
#include "core/Guida.h"
#include "core/Logger.h"
#include "core/ModuloBase.h"
#include "core/Principale.h"
#include "core/db.h"
#include "core/variabiliGlobali.h"
#include "desktop/Ridisegno.h"
#include "desktop/controllaRisoluzione.h"
#include "desktop/frmSplash.h"
#include "platform/host/Services.h"
#include "platform/runtime/Error.h"

using namespace Qt::StringLiterals;

namespace {

void avviaFinestre() {
    frmSplash::comune().show();
    desktop::ridisegna(frmSplash::comune());
    finestre::caricaScheda();
    Principale::comune().load();
    frmSplash::comune().unload();
    Principale::comune().show();
}

} // namespace

void Main() {
    try {
        Logger::comune().log(ModuloBase::rigaDiAvvio());
        db::comune().dbName = ModuloBase::nomeArchivio();
        ModuloBase::salvaPercorso();
        controllaRisoluzione();
        guida::file = ModuloBase::fileGuida();
        variabiliGlobali::inChiusura = false;
        avviaFinestre();
        // Here on purpose: the line marks the end of the start, not of the program.
        Logger::comune().log(u" **** Application END"_s);
    } catch (const runtime::Error& error) {
        host::message(error.description() + error.source());
    } catch (const std::exception& error) {
        host::message(QString::fromLocal8Bit(error.what()));
    }
}
