#pragma once

#include "cards/mdiScheda.h"
#include "core/variabiliGlobali.h"
#include "support/FormPage.h"
#include "support/Pictures.h"
#include "support/RecordsTest.h"
#include "support/ToolkitTest.h"

/// What tests of windows share: beside the scratch program its pictures, and the groups PET "Pettorali"
/// (figure 1) and VUO "Vuoto" (none). Nothing is chosen when a function starts, and all windows go behind it.
class WindowTest : public RecordsTest {
    Q_OBJECT

protected Q_SLOTS:
    void init() {
        using namespace variabiliGlobali;
        RecordsTest::init();
        idUtenteSelezionato = idSchedaSelezionata = idModelloSelezionato = 0;
        nomeModelloSelezionato.clear();
        inChiusura = false;
        sql(u"INSERT INTO muscoli VALUES ('PET','Pettorali','Grande pettorale'),('VUO','Vuoto','');"
            "INSERT INTO figure_muscoli VALUES (1,'PET');");
        givePictures(program());
    }
    void cleanup() {
        variabiliGlobali::inChiusura = true;
        if (mdiScheda::esiste())
            mdiScheda::comune().puoiChiudere = true;
        toolkit::Form::destroyAll();
        toolkit::Application::purge();
        RecordsTest::cleanup();
    }

protected:
    using Answer = host::Answer;

    /// The chosen athlete, card and template: "1 0 0".
    static QString scelti() {
        using namespace variabiliGlobali;
        return QStringLiteral("%1 %2 %3")
            .arg(idUtenteSelezionato)
            .arg(idSchedaSelezionata)
            .arg(idModelloSelezionato);
    }
};
