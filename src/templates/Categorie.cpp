#include "templates/Categorie.h"

#include "core/ModuloBase.h"
#include "platform/runtime/Conversions.h"

using namespace Qt::StringLiterals;

Categorie::Categorie() : archivio_(ModuloBase::nomeArchivio()) {}

std::shared_ptr<runtime::Collection<categoria>> Categorie::getCategorie() const {
    auto tutte = std::make_shared<runtime::Collection<categoria>>();
    store::Recordset righe = archivio_.getRs(u"SELECT * FROM categorie ORDER BY NOME"_s);
    for (; !righe.EOF_(); righe.MoveNext()) {
        auto una = std::make_shared<categoria>();
        una->id_cat = righe(u"id_cat").toInt32();
        una->nome = righe(u"nome").toText();
        tutte->Add(una);
    }
    return tutte;
}

void Categorie::fillcategorie(host::ItemList& comboBox) const {
    const auto tutte = getCategorie();
    const qint16 ultima = runtime::toInt16(tutte->Count());
    for (int i = 1; i <= ultima; ++i)
        comboBox.addItem(tutte->Item(i)->nome);
}
