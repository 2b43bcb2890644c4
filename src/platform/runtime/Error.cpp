#include "platform/runtime/Error.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace runtime {

Error::Error(int number, QString description, QString source)
    : number_(number), description_(std::move(description)), source_(std::move(source)),
      what_(QByteArray::number(number_) + '-' + description_.toUtf8()) {}

QString standardDescription(int number) {
    switch (number) {
    case InvalidCall:
        return u"Chiamata o valore non ammesso"_s;
    case Overflow:
        return u"Numero troppo grande per il campo che lo deve contenere"_s;
    case SubscriptOutOfRange:
        return u"Posizione fuori dall’elenco"_s;
    case TypeMismatch:
        return u"Il valore non è del tipo richiesto"_s;
    case FileNotFound:
        return u"File non trovato"_s;
    case PathFileAccess:
        return u"Impossibile accedere al file"_s;
    case ObjectNotSet:
        return u"Oggetto non assegnato"_s;
    case InvalidUseOfNull:
        return u"Manca un valore che non può essere vuoto (Null)"_s;
    case InvalidPropertyValue:
        return u"Valore della proprietà non valido"_s;
    case ElementNotFound:
        return u"Elemento non trovato"_s;
    case Cancelled:
        return u"Operazione annullata"_s;
    default:
        return u"Errore dell’applicazione"_s;
    }
}

void raise(int number, QString description, QString source) {
    if (description.isEmpty())
        description = standardDescription(number);
    if (source.isEmpty())
        source = u"Quiverdeck"_s;
    throw Error(number, std::move(description), std::move(source));
}

} // namespace runtime
