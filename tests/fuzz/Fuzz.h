#pragma once

#include <QByteArray>
#include <QList>

#include <stdexcept>

/// What reads text and files from outside, each as a function of any bytes that checks what must hold of
/// them. libFuzzer drives these functions (preset "fuzz"), and so does the seeded generator under ctest.
namespace fuzz {

/// Throws, naming the rule that the input breaks.
inline void require(bool holds, const char* rule) {
    if (!holds)
        throw std::logic_error(rule);
}

void dialect(const QByteArray& input);
void numbers(const QByteArray& input);
void dates(const QByteArray& input);
void days(const QByteArray& input);
void sidefile(const QByteArray& input);
void pictures(const QByteArray& input);

/// Small sound pictures of every format, and heads that claim more than they hold: the corpus of `pictures`.
QList<QByteArray> pictureSeeds();

} // namespace fuzz
