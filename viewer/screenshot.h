#pragma once

#include <QString>
#include <QStringList>

class ViewerWindow;
struct CommandLine;

/// Shows the window with the image or the folder that the command line names, sets the controls as
/// it asks for, waits until everything has settled, and saves what the window shows as a PNG file.
/// Returns one line that says what went wrong; empty on success. `report` takes the lines that the
/// user is to read: one for each region of interest.
QString takeScreenshot(ViewerWindow* window, const CommandLine& line, QStringList* report);
