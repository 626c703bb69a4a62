#pragma once

class CVKIntensityWidget;
class FrameSeries;

/// Whether the widget, which shows a frame of the series with its region and cross-hair, answers
/// and paints the same after updateFrame() as another one that loads these pixels from a raw file.
/// Prints what differs.
bool checkFrames(CVKIntensityWidget* intensity, const FrameSeries& series);
