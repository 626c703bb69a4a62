#pragma once

#include "cvkintensitywidget.h"

#include <QString>

/// What the viewer says about images.

/// Size and depth of the image, and what was changed in reading it, as one line; empty without an
/// image.
QString imageSummary(const CVKIntensityWidget::ImageInfo& info);

/// Why the file at `path` is not shown, as one sentence; empty for LoadProblem::None.
QString problemText(const QString& path, CVKIntensityWidget::LoadProblem problem);
