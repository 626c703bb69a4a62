#pragma once

#include <QLocale>

class QCoreApplication;

/// Installs the texts of library, viewer and Qt's own dialogs in the first of the locale's
/// languages that there are texts for. English needs none, and comes before what follows it.
/// The translators belong to the application. False when the texts stay English.
bool installLanguage(QCoreApplication* application, const QLocale& locale);
