#pragma once

#include "appearance.h"
#include "cvkintensitywidget.h"
#include "rawframe.h"
#include "viewerwindow.h"

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QStackedWidget>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

/// A shown window, and a folder of small raw frames to open in it: "frame 1.raw", "frame 2.raw" and
/// "frame 10.raw", 64, 65 and 73 pixels wide and 48 high.
class ViewerFixture
{
public:
    static void setUpProgram()
    {
        initViewerResources();
        applyAppearance();
        QLoggingCategory::setFilterRules("*.debug=false");
    }

    ViewerFixture()
    {
        for (const int number : { 1, 2, 10 }) {
            writeFrame(QString("frame %1.raw").arg(number), 63 + number);
        }
        makeWindow();
    }

    void makeWindow()
    {
        window = std::make_unique<ViewerWindow>();
        window->resize(1000, 700);
        window->show();
        QVERIFY(QTest::qWaitForWindowExposed(window.get()));
        QApplication::setActiveWindow(window.get());
    }

    QString path(const QString& name) const { return folder.filePath(name); }

    /// 16 bits a sample, 48 rows; samples rise along the row.
    void writeFrame(const QString& name, int width) const
    {
        RawFrame frame;
        frame.width = width;
        frame.height = 48;
        frame.bytesPerChannel = 2;
        for (int i = 0; i < frame.width * frame.height; ++i) {
            frame.bytes.append(char(i % width)).append(char(i % 7));
        }
        QString problem;
        QVERIFY2(writeRawFrame(path(name), frame, &problem), qPrintable(problem));
    }

    /// No window manager activates the window after a dialog.
    void press(const char* keys) const
    {
        QApplication::setActiveWindow(window.get());
        QTest::keySequence(window.get(), QKeySequence(keys));
    }

    QAction* action(const char* name) const { return window->findChild<QAction*>(name); }
    QString status(const char* name) const { return window->findChild<QLabel*>(name)->text(); }
    QWidget* page() const { return window->findChild<QStackedWidget*>("pages")->currentWidget(); }
    CVKIntensityWidget* intensity() const { return window->findChild<CVKIntensityWidget*>(); }

    template <class Control>
    Control* control(const char* name) const
    {
        return intensity()->findChild<Control*>(name);
    }

    QString shownFile() const { return QFileInfo(status("statusFileName")).fileName(); }

    QTemporaryDir folder;
    std::unique_ptr<ViewerWindow> window;
};
