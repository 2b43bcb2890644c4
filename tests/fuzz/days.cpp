#include "cards/GGAllenHELPER.h"
#include "fuzz/Fuzz.h"
#include "support/Errors.h"
#include "support/FakeControls.h"

using namespace Qt::StringLiterals;

/// The first byte is the length of the list, usually nine.
void fuzz::days(const QByteArray& input) {
    constexpr int usual = 9;
    const int length = input.isEmpty() || input[0] >= '0' ? usual : input[0] & 15;
    const QString text = QString::fromUtf8(input);
    const QString within = text.left(length);

    FakeCheckList list(length);
    const int error = errorOf([&] {
        GGAllenHELPER::scriviGGAllen(text, list);
        return 0;
    });
    require(error == (text.mid(length).contains(u'1') ? runtime::SubscriptOutOfRange : 0),
            "a tick behind the list is an error, and nothing else is");
    QString wanted(length, u'0');
    for (int i = 0; i < within.size(); ++i)
        if (within[i] == u'1')
            wanted[i] = u'1';
    const QString read = GGAllenHELPER::leggiGGAllen(list);
    require(read == wanted, "the ticks are the string's");
    FakeCheckList again(length);
    GGAllenHELPER::scriviGGAllen(read, again);
    require(again.ticks == list.ticks, "what is read writes the same ticks");

    QString printed;
    const int printing = errorOf([&] { return printed = GGAllenHELPER::descrizioneGGAllen(text); });
    require(printing == 0 || (printing == runtime::SubscriptOutOfRange && text.mid(usual).contains(u'1')),
            "nine characters can always be printed");
    if (printing == 0 && text.size() <= usual && !text.left(2).contains(u'1'))
        require(printed.split(u" - "_s, Qt::SkipEmptyParts).size() == text.mid(2).count(u'1'),
                "each day is named once");
}
