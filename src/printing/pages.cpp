#include "printing/pages.h"

#include "cards/Esercizio.h"
#include "cards/scheda.h"
#include "core/f_library.h"
#include "platform/host/Application.h"
#include "platform/runtime/Conversions.h"
#include "printing/SuperficieScheda.h"

#include <algorithm>

using namespace Qt::StringLiterals;

void pages::createPages(std::int32_t id) {
    if (id != 0)
        id_scheda = id;
    while (pages_.Count() > 0)
        pages_.Remove(1);

    auto card = std::make_shared<::scheda>();
    card->carica(id_scheda);
    card->caricaEsercizi();
    const int n = card->esercizi->Count();
    const int count = runtime::toInt16(arrotondaSu(double(n) / sheet::blocchiPerFoglio));
    for (int p = 1; p <= count; ++p) {
        auto page = std::make_shared<Page>();
        page->id_scheda = id_scheda;
        page->scheda = card;
        const int last = std::min(p * sheet::blocchiPerFoglio, n);
        for (int i = (p - 1) * sheet::blocchiPerFoglio + 1; i <= last; ++i)
            page->esercizi.Add(card->esercizi->Item(i));
        page->isLastPage = p == count;
        pages_.Add(std::move(page));
    }
}

void pages::OpenCanvas() {
    window_.canvas().element(u"info"_s).text = u"Printed with: "_s + host::title();
}

void pages::PreviewPage(std::int16_t numero) {
    pages_.Item(numero)->setCanvas(window_);
    currentPage = numero;
    const QString text = u"Pagina %1/%2"_s.arg(numero).arg(pages_.Count());
    window_.setFirstPanel(text);
    window_.canvas().element(u"piepagina"_s).text = text;
}
