#include "support/WindowTest.h"

#include "cards/mdiScheda.h"
#include "core/variabiliGlobali.h"

using namespace Qt::StringLiterals;
using namespace variabiliGlobali;

namespace {

void azzera() {
    idUtenteSelezionato = idSchedaSelezionata = idModelloSelezionato = 0;
    nomeModelloSelezionato.clear();
    inChiusura = false;
}

} // namespace

void WindowTest::init() {
    RecordsTest::init();
    azzera();
    sql(u"INSERT INTO muscoli VALUES ('PET','Pettorali','Grande pettorale'),('VUO','Vuoto','');"
        "INSERT INTO figure_muscoli VALUES (1,'PET');");
    givePictures(program());
}

void WindowTest::cleanup() {
    inChiusura = true;
    if (mdiScheda::esiste())
        mdiScheda::comune().puoiChiudere = true;
    toolkit::Form::destroyAll();
    toolkit::Application::purge();
    azzera();
    RecordsTest::cleanup();
}

QString WindowTest::scelti() {
    return u"%1 %2 %3"_s.arg(idUtenteSelezionato).arg(idSchedaSelezionata).arg(idModelloSelezionato);
}
