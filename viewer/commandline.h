#pragma once

#include "displaysettings.h"

#include <QCoreApplication>
#include <QSize>
#include <QString>
#include <QStringList>

#include <optional>

/// What the program was asked to do.
struct CommandLine
{
    Q_DECLARE_TR_FUNCTIONS(CommandLine)

public:
    QString image; ///< file to open, or folder to show; empty: none
    std::optional<int> page; ///< of that file, from 0; without it the first
    QString screenshot; ///< file to save the window to; empty: an ordinary session
    QSize size; ///< window size in pixels; not valid: that of a first start
    DisplaySettings settings; ///< for a screenshot
    QString regionFile; ///< regions to be added to those of the settings; empty: none
    QString error; ///< one line; empty when the arguments make sense
};

/// Largest width and height of a screenshot, in pixels.
constexpr int maxScreenshotExtent = 8192;

/// Reads the arguments behind the program's name. "--" ends the options.
CommandLine parsedCommandLine(const QStringList& arguments);

/// "WxH" as a size; not valid unless both are whole numbers from 1 to maxScreenshotExtent.
QSize parsedSize(const QString& text);

/// "A,B,..." as exactly `count` whole numbers from 0 on; empty for everything else.
QVector<int> parsedNumbers(const QString& text, int count);

/// The text of --help.
QString commandLineHelp();
