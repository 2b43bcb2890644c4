#pragma once

#include <QPoint>
#include <QString>

// The services of the desktop that the program asks for, each behind one replaceable seam. The
// application installs its own at start, tests install theirs.

namespace host {

enum class Icon { None, Critical, Question, Exclamation, Information };
enum class Buttons { Ok, YesNo, YesNoCancel };
enum class Answer { Ok, Yes, No, Cancel };

/// Shows message boxes; every box bears the application's title and stops the program until it is answered.
class Boxes {
public:
    virtual ~Boxes() = default;
    virtual Answer show(Icon icon, const QString& text, Buttons buttons) = 0;
};

/// Lets the user choose a file.
class FileDialogs {
public:
    virtual ~FileDialogs() = default;
    /// `filter` is "Name|*.A;*.B"; the result is empty when the dialog was dismissed.
    virtual QString openFile(const QString& filter, const QString& folder) = 0;
};

/// Tells where the mouse stands on the screen.
class Cursor {
public:
    virtual ~Cursor() = default;
    /// In pixels of the screen.
    virtual QPoint position() = 0;
};

/// The installed service; error 5 if there is none.
Boxes& boxes();
FileDialogs& fileDialogs();
Cursor& cursor();

/// Installs a service, which stays the caller's; nullptr takes it away.
void setBoxes(Boxes* service);
void setFileDialogs(FileDialogs* service);
void setCursor(Cursor* service);

/// A box with an OK button.
void message(const QString& text, Icon icon = Icon::None);
/// A box with a question.
Answer ask(const QString& text, Icon icon, Buttons buttons);

} // namespace host
