#pragma once

#include "image/reading.h"

#include <QString>

/// Why a file is refused, as one sentence without its point.
QString problemText(const QString& path, LoadProblem problem);
