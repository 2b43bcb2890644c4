#include "platform/runtime/Error.h"

#include <utility>

namespace runtime {

Error::Error(int number, QString description, QString source)
    : number_(number), description_(std::move(description)), source_(std::move(source)),
      what_(QByteArray::number(number_) + '-' + description_.toUtf8()) {}

QString standardDescription(int number) {
    switch (number) {
    case InvalidCall:
        return QStringLiteral("Chiamata o valore non ammesso");
    case Overflow:
        return QStringLiteral("Numero troppo grande per il campo che lo deve contenere");
    case SubscriptOutOfRange:
        return QStringLiteral("Posizione fuori dall’elenco");
    case TypeMismatch:
        return QStringLiteral("Il valore non è del tipo richiesto");
    case FileNotFound:
        return QStringLiteral("File non trovato");
    case PathFileAccess:
        return QStringLiteral("Impossibile accedere al file");
    case ObjectNotSet:
        return QStringLiteral("Oggetto non assegnato");
    case InvalidUseOfNull:
        return QStringLiteral("Manca un valore che non può essere vuoto (Null)");
    case InvalidPropertyValue:
        return QStringLiteral("Valore della proprietà non valido");
    case ElementNotFound:
        return QStringLiteral("Elemento non trovato");
    case Cancelled:
        return QStringLiteral("Operazione annullata");
    default:
        return QStringLiteral("Errore dell’applicazione");
    }
}

void raise(int number, QString description, QString source) {
    if (description.isEmpty())
        description = standardDescription(number);
    if (source.isEmpty())
        source = QStringLiteral("Quiverdeck");
    throw Error(number, std::move(description), std::move(source));
}

} // namespace runtime
