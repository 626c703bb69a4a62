#pragma once

#include <QMainWindow>
#include <QPointer>

class CVKIntensityWidget;
class ElidedLabel;
class LoadProblemPage;
class QLabel;
class QMimeData;
class QStackedWidget;
class WelcomePage;

/// The program's window: one image at a time in an intensity widget, or a page in its place.
class ViewerWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit ViewerWindow(QWidget* parent = nullptr);

    /// Closes the image that is open and shows the file instead, or the page that says why not.
    /// True when the image is shown.
    bool openFile(const QString& path);

    /// Why the file last opened is not shown; empty when it is, or when none is open.
    QString problem() const;

    /// Whether a drag carries exactly one local file; its path, or an empty string.
    static QString draggedFile(const QMimeData* data);

public Q_SLOTS:
    void chooseFile();

    /// Back to the page without an image.
    void closeFile();

    /// The Return button of the intensity widget calls this by name.
    void sltSwitchToGallery();

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void createMenu();
    void createPages();
    void createIntensityWidget();
    bool loadIntoWidget(const QString& path);
    void showProblem(const QString& path);
    void nameFile(const QString& path, const QString& summary);

    QStackedWidget* m_pages = nullptr;
    WelcomePage* m_welcomePage = nullptr;
    LoadProblemPage* m_problemPage = nullptr;
    QPointer<CVKIntensityWidget> m_intensityWidget; // deletes itself when it is closed
    ElidedLabel* m_fileName = nullptr;
    QLabel* m_imageSize = nullptr;
    QString m_folder; // of the file last opened
};
