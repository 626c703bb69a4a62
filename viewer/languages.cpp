#include "languages.h"

#include "qtcompat.h"

#include <QCoreApplication>
#include <QTranslator>

namespace {

bool install(QCoreApplication* application, const QLocale& language, const QString& name,
    const QString& folder)
{
    auto* translator = new QTranslator(application);
    if (translator->load(language, name, "_", folder)) {
        return QCoreApplication::installTranslator(translator);
    }
    delete translator;
    return false;
}

bool installAll(QCoreApplication* application, const QLocale& language)
{
    const QString folder = ":/translations";
    if (!install(application, language, "vkviewer", folder)) {
        return false; // the library's texts alone would make a mixture
    }
    install(application, language, "qtbase", QtCompat::translationsPath());
    return install(application, language, "vkintensitywidget", folder);
}

} // namespace

bool installLanguage(QCoreApplication* application, const QLocale& locale)
{
    for (const QString& name : locale.uiLanguages()) {
        const QLocale language(name);
        if (language.language() == QLocale::English || language.language() == QLocale::C) {
            return false; // whoever reads English before German gets English
        }
        const bool isSimplifiedChinese = language.script() == QLocale::SimplifiedHanScript;
        if (installAll(application, isSimplifiedChinese ? QLocale("zh_CN") : language)) {
            return true;
        }
    }
    return false;
}
