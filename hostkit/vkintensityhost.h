#pragma once

#include <QString>

/// The finished look of an application that shows CVKIntensityWidget: skin images, style sheet,
/// palette, font, and a ring around the control that has the keyboard focus.
///
/// The host kit is a static library next to the widget's own. The CMake function
/// vkintensity_add_host() links both to a program and puts the palette files beside it, in pal/,
/// where the widget's palette buttons look for them.
///
/// \code
/// int main(int argc, char* argv[])
/// {
///     QApplication application(argc, argv);
///     vkintensityhost::applyLook();
///     auto* intensity = new CVKIntensityWidget; // deletes itself when it is closed
///     intensity->setReading(CVKIntensityWidget::Reading::Faithful);
///     intensity->loadImage(application.arguments().value(1));
///     intensity->resize(1280, 800);
///     intensity->show();
///     return application.exec();
/// }
/// \endcode
namespace vkintensityhost {

/// Gives the whole application its look: Qt's Fusion style, a dark palette, a font of 13 pixels at
/// 96 dots per inch, styleSheet() followed by `ownRules`, and the focus ring. What was set of these
/// before is replaced; the font keeps its family.
///
/// Call it on the GUI thread, after the QApplication and before the first CVKIntensityWidget, which
/// takes its skin from the resources while it is made. Without a QApplication nothing happens. A
/// further call sets everything anew, for instance with other rules.
void applyLook(const QString& ownRules = QString());

/// The rules for the controls of CVKIntensityWidget, and for tool tips. They name the widget's
/// classes and object names, so they leave other controls of the application alone. The images they
/// name are there from the first call of this function or of applyLook() on.
QString styleSheet();

/// `pixels` at 96 dots per inch as pixels of the primary screen, truncated: 290 at 120 dots per
/// inch gives 362. The widget's column and buttons follow the same scale. Unchanged without a
/// screen.
int scaledForScreen(int pixels);

} // namespace vkintensityhost
