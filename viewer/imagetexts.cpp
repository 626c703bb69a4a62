#include "imagetexts.h"

#include "imagefiles.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QStringList>

namespace {

using LoadProblem = CVKIntensityWidget::LoadProblem;

/// Context of the texts for translation.
struct ImageTexts
{
    Q_DECLARE_TR_FUNCTIONS(ImageTexts)
};

/// Name of the format that the suffix stands for.
QString formatName(const QFileInfo& file)
{
    const QString suffix = file.suffix().toLower();
    if (suffix == "raw") {
        return ImageTexts::tr("raw camera file");
    }
    if (suffix.startsWith("jp")) {
        return ImageTexts::tr("JPEG image");
    }
    return suffix.startsWith("tif") ? ImageTexts::tr("TIFF image")
                                    : ImageTexts::tr("%1 image").arg(suffix.toUpper());
}

QString suffixProblem(const QString& suffix)
{
    const QString known = imageSuffixes().join(", ");
    return suffix.isEmpty()
        ? ImageTexts::tr("The file name has no suffix. Images end in %1.").arg(known)
        : ImageTexts::tr("Files of the kind \"%1\" are not known. Images end in %2.")
              .arg(suffix.left(20), known);
}

QString readProblem(const QFileInfo& file)
{
    if (!file.isReadable()) {
        return ImageTexts::tr("You have no permission to read this file.");
    }
    if (file.size() == 0) {
        return ImageTexts::tr("The file is empty.");
    }
    return ImageTexts::tr(
        "The file cannot be read as a %1: it is damaged, or of another kind than its suffix says.")
        .arg(formatName(file));
}

QStringList changesInReading(const CVKIntensityWidget::ImageInfo& info)
{
    QStringList changes;
    if (info.isColorReduced) {
        changes << ImageTexts::tr("color as gray");
    }
    if (info.isAlphaDropped) {
        changes << ImageTexts::tr("alpha dropped");
    }
    if (info.isTypeConverted) {
        changes << (info.sampleKind == CVKIntensityWidget::SampleKind::Floating
                ? ImageTexts::tr("floating-point samples as whole numbers")
                : ImageTexts::tr("signed samples as whole numbers"));
    }
    return changes;
}

} // namespace

QString imageSummary(const CVKIntensityWidget::ImageInfo& info)
{
    if (!info.isValid()) {
        return QString();
    }
    QStringList parts;
    const QString changes = changesInReading(info).join(", ");
    if (!changes.isEmpty()) {
        parts << changes;
    }
    parts << ImageTexts::tr("%1 × %2 pixels").arg(info.size.width()).arg(info.size.height());
    parts << ImageTexts::tr("%1 bit").arg(info.bitDepth);
    return parts.join("   ");
}

QString problemText(const QString& path, LoadProblem problem)
{
    const QFileInfo file(path);
    switch (problem) {
    case LoadProblem::None: return QString();
    case LoadProblem::Missing: return ImageTexts::tr("There is no file of this name.");
    case LoadProblem::NotAFile:
        return file.isDir() ? ImageTexts::tr("This is a folder, not an image file.")
                            : ImageTexts::tr("This is not a regular file.");
    case LoadProblem::UnknownSuffix: return suffixProblem(file.suffix().toLower());
    case LoadProblem::NotReadable: return readProblem(file);
    case LoadProblem::UnsupportedKind:
        return ImageTexts::tr(
            "The file may be sound, but its kind is not supported: its number of bits a sample or "
            "its compression, for example.");
    case LoadProblem::NoPixels: return ImageTexts::tr("The image holds no pixels.");
    case LoadProblem::TooLarge:
        return ImageTexts::tr(
            "The image is larger than can be loaded, or than the memory that is free.");
    case LoadProblem::OverPixelLimit:
        return ImageTexts::tr("The image has more pixels than are allowed.");
    case LoadProblem::NoSuchPage: return ImageTexts::tr("The file has no such page.");
    case LoadProblem::UnfaithfulValues:
        return ImageTexts::tr(
            "The image cannot be shown faithfully: it has values that are negative, fractional or "
            "larger than 4294967295.");
    case LoadProblem::UnfaithfulDepth:
        return ImageTexts::tr(
            "The image cannot be shown faithfully: only 8, 16 or 32 bits a sample can be.");
    case LoadProblem::UnfaithfulChannels:
        return ImageTexts::tr("The image cannot be shown faithfully: only one channel or three can "
                              "be, with or without alpha.");
    case LoadProblem::BadFrame: break; // no file has this
    }
    return ImageTexts::tr("The file cannot be shown.");
}
