#include "about.h"

#include <QCoreApplication>

namespace {

/// Context of the texts for translation.
struct About
{
    Q_DECLARE_TR_FUNCTIONS(About)
};

} // namespace

QString aboutText()
{
    const QStringList paragraphs {
        About::tr("VKIntensity Viewer %1").arg(QCoreApplication::applicationVersion()),
        About::tr("Shows what is in a camera image: profiles, charts with labelled peaks, regions "
                  "of interest and their statistics."),
        About::tr("Library VKIntensityWidget %1, Qt %2").arg(VKINTENSITY_VERSION, qVersion()),
        About::tr("Copyright © 2026 The VKIntensityWidget developers") + '\n'
            + About::tr("Free software under the MIT License; see the file LICENSE."),
    };
    return paragraphs.join("\n\n");
}
