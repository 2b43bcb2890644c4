#pragma once

#include <QByteArray>
#include <QString>

#include <exception>

namespace runtime {

/// Numbers of the errors that the program raises and tells apart. Errors of the store carry the store's
/// own code instead (see store::Error).
enum ErrorNumber : int {
    InvalidCall = 5,
    Overflow = 6,
    SubscriptOutOfRange = 9,
    TypeMismatch = 13,
    FileNotFound = 53,
    PathFileAccess = 75,
    ObjectNotSet = 91,
    InvalidUseOfNull = 94,
    InvalidPropertyValue = 380,
    OwnErrors = 513, ///< first number of the program's own errors
    ElementNotFound = 35601,
    Cancelled = 32755, ///< a dialog was dismissed
};

/// The one exception type: number, description for the user (Italian) and source.
class Error : public std::exception {
public:
    Error(int number, QString description, QString source = {});
    int number() const { return number_; }
    QString description() const { return description_; }
    QString source() const { return source_; }
    /// "number-description", for logs and test output.
    const char* what() const noexcept override { return what_.constData(); }

private:
    int number_;
    QString description_;
    QString source_;
    QByteArray what_;
};

/// The standard Italian description of `number`.
QString standardDescription(int number);

/// Raises an Error; an empty description takes the standard one, an empty source the program's name.
[[noreturn]] void raise(int number, QString description = {}, QString source = {});

} // namespace runtime
