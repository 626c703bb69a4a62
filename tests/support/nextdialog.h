#pragma once

#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QTimer>
#include <QtTest>

/// Calls `act` with the modal dialog of class Dialog that comes up next, as soon as it is shown:
/// however long a loaded machine takes, the dialog is answered. `act` has to end it. The timer
/// belongs to `context`, and ends unused with it.
template <class Dialog, class Act>
void withNextDialog(QObject* context, Act act)
{
    auto* const timer = new QTimer(context);
    QObject::connect(timer, &QTimer::timeout, context, [timer, act] {
        auto* const dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
        if (dialog && dialog->isVisible()) {
            timer->stop();
            timer->deleteLater();
            act(dialog);
        }
    });
    timer->start(10); // ms
}

/// Puts a file name into the next file dialog and accepts it with the Return key. The name is set
/// as a whole: the completion of typed names depends on how fast the folder is read.
inline void chooseNextFile(QObject* context, const QString& path)
{
    withNextDialog<QFileDialog>(context, [path](QFileDialog* dialog) {
        auto* const name = dialog->findChild<QLineEdit*>();
        name->setText(path);
        QTest::keyClick(name, Qt::Key_Return);
    });
}
