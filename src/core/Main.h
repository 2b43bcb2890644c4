#pragma once

/// The start-up: log, store, settings, display, splash, the two windows that live as long as the program. If
/// a step fails, a box shows the error, the routine ends there, and what was loaded stays.
void Main();
