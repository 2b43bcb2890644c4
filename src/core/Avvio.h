#pragma once

/// The whole program: makes the application, installs the services of the desktop, runs Main and the event
/// loop until no window is left. A second start from the same program's folder raises the running window and
/// ends. The result is the process's status: 0, or 1 if Main failed.
int avvia(int& argc, char** argv);
