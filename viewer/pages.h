#pragma once

#include <QFrame>

class ElidedLabel;
class QLabel;

/// What the window shows before a file is opened: how to open one.
class WelcomePage : public QFrame
{
    Q_OBJECT

public:
    explicit WelcomePage(QWidget* parent = nullptr);

Q_SIGNALS:
    void openRequested();
};

/// Stands in place of the picture when a file cannot be shown: names the file and the reason.
class LoadProblemPage : public QFrame
{
    Q_OBJECT

public:
    explicit LoadProblemPage(QWidget* parent = nullptr);

    /// `path` is shown as its last part, with the whole of it as tool tip.
    void showProblem(const QString& path, const QString& reason);

    QString fileName() const;
    QString reason() const;

Q_SIGNALS:
    void openRequested();

private:
    ElidedLabel* m_fileName;
    QLabel* m_reason;
};

/// Stands in place of a gallery without images: says so, and offers ways on.
class EmptyFolderPage : public QFrame
{
    Q_OBJECT

public:
    explicit EmptyFolderPage(QWidget* parent = nullptr);

    void setTexts(const QString& title, const QString& text);

Q_SIGNALS:
    void openRequested();
    void folderRequested();

private:
    QLabel* m_title;
    QLabel* m_text;
};
