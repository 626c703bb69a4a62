#pragma once

#include <QString>

class ViewerWindow;
struct CommandLine;

/// Shows the window with the image or the folder that the command line names, sets what it asks
/// for, waits until everything has settled, and saves what the window shows as a PNG file.
/// Returns one line that says what went wrong; empty on success. `notice` receives one line on what
/// was left out, when something was.
QString takeScreenshot(ViewerWindow* window, const CommandLine& line, QString* notice);
