#pragma once

#include <QByteArray>
#include <QLatin1StringView>
#include <QString>

/// JSON text put together as it comes, without a tree of values in between: the open card is written at each
/// key, whatever its length. The caller sees to the order: a name, then its value, inside an object.
class TestoJson {
public:
    void apriOggetto() { apri('{'); }
    void chiudiOggetto() { chiudi('}'); }
    void apriElenco() { apri('['); }
    void chiudiElenco() { chiudi(']'); }

    void nome(QLatin1StringView nome);
    void nullo();
    void valore(bool valore);
    void valore(qint32 valore);
    /// As UTF-8; half of a surrogate pair, which UTF-8 cannot hold, is escaped.
    void valore(const QString& valore);

    /// A field as the records' lists of fields name it.
    template <class Valore> void operator()(QLatin1StringView campo, const Valore& contenuto) {
        nome(campo);
        valore(contenuto);
    }

    const QByteArray& testo() const { return testo_; }

private:
    void apri(char segno);
    void chiudi(char segno);
    void separa();
    void escape(char16_t c);

    QByteArray testo_;
    bool primo_ = true; ///< nothing stands yet in the object or list
};
