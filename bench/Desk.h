#pragma once

#include "platform/host/Services.h"
#include "platform/toolkit/Application.h"

#include <QTemporaryDir>

namespace bench {

/// Gives this process, and those that it starts, a screen of 1024 x 768 that nobody sees; `folder` keeps its
/// description. Before an application is made.
void useVirtualScreen(const QString& folder);

/// The program's application without a screen, for the windows that are measured: questions are answered with
/// No, messages dismissed. An error that nobody catches ends the process.
class Desk {
public:
    Desk();
    ~Desk();
    Desk(const Desk&) = delete;
    Desk& operator=(const Desk&) = delete;

    /// Delivers what is pending, so that everything that shows is painted.
    static void settle();

private:
    /// In force before the application is made.
    struct Screen {
        Screen() { useVirtualScreen(folder.path()); }
        QTemporaryDir folder;
    };
    struct Dismiss : host::Boxes {
        host::Answer show(host::Icon icon, const QString& text, host::Buttons buttons) override;
    };

    Screen screen_;
    Dismiss boxes_;
    int argc_ = 1;
    char name_[12] = "quiverdeck";
    char* argv_[2] = {name_, nullptr};
    toolkit::Application application_;
};

} // namespace bench
