#pragma once

#include <QString>

class ViewerWindow;
struct CommandLine;

/// Shows the window with the image that the command line names, waits until it has settled, and
/// saves what it shows as a PNG file. Returns one line that says what went wrong; empty on success.
QString takeScreenshot(ViewerWindow* window, const CommandLine& line);
