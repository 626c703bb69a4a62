#pragma once

#include <QtGlobal>

/// Widens `count` pixels of three bytes, red first, to words as QImage::Format_RGB32 has them:
/// 0xffRRGGBB in host byte order.
void widenToRgbWords(const uchar* rgb, int count, uchar* words);
