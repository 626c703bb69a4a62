#include "filedrop.h"

#include <QDropEvent>
#include <QMimeData>
#include <QUrl>
#include <QtTest>

/// What is taken from a drag, and how it is answered.
class TestFileDrop : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void draggedFile_isExactlyOneLocalFile_data();
    void draggedFile_isExactlyOneLocalFile();
    void answer_isAlwaysACopy_data();
    void answer_isAlwaysACopy();
};

void TestFileDrop::draggedFile_isExactlyOneLocalFile_data()
{
    QTest::addColumn<QList<QUrl>>("urls");
    QTest::addColumn<QString>("file");
    const QUrl lamp = QUrl::fromLocalFile("/data/a lamp.raw");
    QTest::newRow("one file") << QList<QUrl> { lamp } << "/data/a lamp.raw";
    QTest::newRow("two files") << QList<QUrl> { lamp, lamp } << "";
    QTest::newRow("a web address") << QList<QUrl> { QUrl("https://example.org/a.png") } << "";
    QTest::newRow("nothing") << QList<QUrl>() << "";
}

void TestFileDrop::draggedFile_isExactlyOneLocalFile()
{
    QFETCH(QList<QUrl>, urls);
    QMimeData data;
    data.setText("some text");
    data.setUrls(urls);
    QTEST(draggedFile(&data), "file");
}

void TestFileDrop::answer_isAlwaysACopy_data()
{
    QTest::addColumn<int>("possible");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<bool>("taken");
    const int copy = Qt::CopyAction;
    const int move = Qt::MoveAction;
    const int link = Qt::LinkAction;
    const int none = Qt::NoModifier;
    QTest::newRow("copy") << copy << none << true;
    QTest::newRow("copy or move") << (copy | move) << none << true;
    QTest::newRow("move wanted") << (copy | move) << int(Qt::ShiftModifier) << true;
    QTest::newRow("move alone") << move << none << false;
    QTest::newRow("move or link") << (move | link) << none << false;
}

/// The source of a move deletes its file when the move is taken.
void TestFileDrop::answer_isAlwaysACopy()
{
    QFETCH(int, possible);
    QFETCH(int, modifiers);
    QFETCH(bool, taken);
    QMimeData data;
    data.setUrls({ QUrl::fromLocalFile("/data/lamp.raw") });
    QDropEvent drop(QPointF(), Qt::DropActions(possible), &data, Qt::LeftButton,
        Qt::KeyboardModifiers(modifiers));
    drop.setDropAction(Qt::MoveAction); // as the source proposes
    drop.setAccepted(!taken);
    QCOMPARE(acceptedFile(&drop), taken ? QString("/data/lamp.raw") : QString());
    QCOMPARE(drop.isAccepted(), taken);
    if (taken) {
        QCOMPARE(drop.dropAction(), Qt::CopyAction);
    }
}

QTEST_MAIN(TestFileDrop) // a drop event asks the platform for its default
#include "tst_filedrop.moc"
