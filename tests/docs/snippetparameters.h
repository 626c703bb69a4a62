#pragma once

#include <cvkintensitywidget.h>
#include <vkintensityhost.h>

#include <QApplication>
#include <QComboBox>
#include <QGraphicsView>
#include <QLoggingCategory>
#include <QTranslator>

#include <vector>

/// The names that the code in docs/embedding.md uses without making them. No block uses all.
// clang-format off
#define SNIPPET_PARAMETERS                                                                         \
    [[maybe_unused]] CVKIntensityWidget* intensity,                                                \
    [[maybe_unused]] const QString& path = QString(),                                              \
    [[maybe_unused]] const std::vector<quint16>& samples = {},                                     \
    [[maybe_unused]] const QString& folder = QString()
