#include "gallerymodel.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

using LoadProblem = CVKIntensityWidget::LoadProblem;

namespace {

QImage grayPicture(int width, int height)
{
    QImage picture(width, height, QImage::Format_Grayscale8);
    picture.fill(9);
    return picture;
}

GalleryModel::State state(const GalleryModel& model, int row)
{
    return GalleryModel::State(model.data(model.index(row), GalleryModel::StateRole).toInt());
}

QImage picture(const GalleryModel& model, int row)
{
    return model.data(model.index(row), GalleryModel::PictureRole).value<QImage>();
}

} // namespace

class TestGalleryModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void files_areItsRows();
    void outside_thereIsNothing();
    void picture_isAnnounced();
    void noPicture_isRefusedForAReason();
    void noPicture_ofALargeImageIsNotRefused();
    void waiting_areTheRowsWithoutAPicture();
    void sameFiles_keepTheirPictures();
    void changedFile_waitsAgain();
    void bytes_areLimited();

private:
    void write(const QString& name, const QByteArray& bytes);
    QString path(const QString& name) const { return m_folder->filePath(name); }
    QFileInfoList files(const QStringList& names) const;

    std::unique_ptr<QTemporaryDir> m_folder;
};

void TestGalleryModel::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    write("a.png", "1");
    write("b & <c>.raw", "22");
}

void TestGalleryModel::write(const QString& name, const QByteArray& bytes)
{
    QFile file(path(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), qint64(bytes.size()));
}

QFileInfoList TestGalleryModel::files(const QStringList& names) const
{
    QFileInfoList found;
    for (const QString& name : names) {
        found << QFileInfo(path(name));
    }
    return found;
}

void TestGalleryModel::files_areItsRows()
{
    GalleryModel model;
    QSignalSpy reset(&model, SIGNAL(modelReset()));
    model.setFiles(files({ "a.png", "b & <c>.raw" }));
    QCOMPARE(reset.size(), 1);
    QCOMPARE(model.rowCount(), 2);
    QCOMPARE(model.rowCount(model.index(0)), 0);
    QCOMPARE(model.data(model.index(1), Qt::DisplayRole).toString(), QString("b & <c>.raw"));
    QCOMPARE(
        model.data(model.index(1), Qt::ToolTipRole).toString(), QString("b &amp; &lt;c&gt;.raw"));
    QCOMPARE(model.data(model.index(1), GalleryModel::PathRole).toString(), path("b & <c>.raw"));
    QVERIFY(!model.data(model.index(1), Qt::EditRole).isValid());
    QCOMPARE(model.pathAt(0), path("a.png"));
    QCOMPARE(model.rowOf(path("b & <c>.raw")), 1);
    QCOMPARE(state(model, 0), GalleryModel::State::Waiting);
    QVERIFY(picture(model, 0).isNull());
}

void TestGalleryModel::outside_thereIsNothing()
{
    GalleryModel model;
    model.setFiles(files({ "a.png" }));
    QVERIFY(model.pathAt(-1).isEmpty());
    QVERIFY(model.pathAt(1).isEmpty());
    QCOMPARE(model.rowOf(path("gone.png")), -1);
    QVERIFY(!model.data(QModelIndex(), Qt::DisplayRole).isValid());
    QVERIFY(!model.setPicture(-1, grayPicture(4, 4), LoadProblem::None));
    QVERIFY(!model.setPicture(1, grayPicture(4, 4), LoadProblem::None));
}

void TestGalleryModel::picture_isAnnounced()
{
    GalleryModel model;
    model.setFiles(files({ "a.png", "b & <c>.raw" }));
    QSignalSpy changed(&model, SIGNAL(dataChanged(QModelIndex, QModelIndex, QVector<int>)));
    QVERIFY(model.setPicture(1, grayPicture(4, 4), LoadProblem::None));
    QCOMPARE(changed.size(), 1);
    QCOMPARE(changed.first().at(0).toModelIndex().row(), 1);
    QCOMPARE(changed.first().at(1).toModelIndex().row(), 1);
    QCOMPARE(state(model, 1), GalleryModel::State::Ready);
    QCOMPARE(picture(model, 1).size(), QSize(4, 4));
    QCOMPARE(state(model, 0), GalleryModel::State::Waiting);
}

void TestGalleryModel::noPicture_isRefusedForAReason()
{
    GalleryModel model;
    model.setFiles(files({ "a.png" }));
    QVERIFY(model.setPicture(0, QImage(), LoadProblem::NotReadable));
    QCOMPARE(state(model, 0), GalleryModel::State::Refused);
    QCOMPARE(model.data(model.index(0), Qt::ToolTipRole).toString(),
        QString(
            "a.png<br>The file cannot be read as a PNG image: it is damaged, or of another kind "
            "than its suffix says."));
}

/// The limit is that of the small pictures; the image itself can be opened.
void TestGalleryModel::noPicture_ofALargeImageIsNotRefused()
{
    GalleryModel model;
    model.setFiles(files({ "a.png" }));
    QVERIFY(model.setPicture(0, QImage(), LoadProblem::OverPixelLimit));
    QCOMPARE(state(model, 0), GalleryModel::State::TooLarge);
    QCOMPARE(model.data(model.index(0), Qt::ToolTipRole).toString(),
        QString("a.png<br>Too large for a small picture; it can be opened."));
    QVERIFY(model.waiting().isEmpty());
}

void TestGalleryModel::waiting_areTheRowsWithoutAPicture()
{
    GalleryModel model;
    QVERIFY(model.waiting().isEmpty());
    write("d.png", "4");
    write("e.png", "5");
    model.setFiles(files({ "a.png", "b & <c>.raw", "d.png", "e.png" }));
    QVERIFY(model.setPicture(0, grayPicture(4, 4), LoadProblem::None));
    QVERIFY(model.setPicture(2, QImage(), LoadProblem::NotReadable)); // tried and refused
    const QVector<ThumbnailRequest> waiting = model.waiting();
    QCOMPARE(waiting.size(), 2);
    QCOMPARE(waiting.at(0).row, 1);
    QCOMPARE(waiting.at(0).path, path("b & <c>.raw"));
    QCOMPARE(waiting.at(1).row, 3);
    QCOMPARE(waiting.at(1).path, path("e.png"));
}

void TestGalleryModel::sameFiles_keepTheirPictures()
{
    GalleryModel model;
    model.setFiles(files({ "a.png", "b & <c>.raw" }));
    QVERIFY(model.setPicture(1, grayPicture(5, 5), LoadProblem::None));
    write("0.png", "0");
    model.setFiles(files({ "0.png", "b & <c>.raw" }));
    QCOMPARE(model.rowOf(path("a.png")), -1);
    QCOMPARE(state(model, 0), GalleryModel::State::Waiting);
    QCOMPARE(state(model, 1), GalleryModel::State::Ready);
    QCOMPARE(picture(model, 1).width(), 5);
}

void TestGalleryModel::changedFile_waitsAgain()
{
    GalleryModel model;
    model.setFiles(files({ "a.png", "b & <c>.raw" }));
    QVERIFY(model.setPicture(0, grayPicture(5, 5), LoadProblem::None));
    QVERIFY(model.setPicture(1, grayPicture(5, 5), LoadProblem::None));
    write("a.png", "longer");
    QFile other(path("b & <c>.raw"));
    QVERIFY(other.open(QIODevice::ReadWrite));
    QVERIFY(other.setFileTime(
        QDateTime::currentDateTime().addSecs(-1000), QFileDevice::FileModificationTime));
    other.close();
    model.setFiles(files({ "a.png", "b & <c>.raw" }));
    QCOMPARE(state(model, 0), GalleryModel::State::Waiting);
    QVERIFY(picture(model, 0).isNull());
    QCOMPARE(state(model, 1), GalleryModel::State::Waiting);
}

void TestGalleryModel::bytes_areLimited()
{
    GalleryModel model(100); // bytes; a grey picture of 8 x 6 takes 48
    model.setFiles(files({ "a.png", "b & <c>.raw" }));
    QVERIFY(model.setPicture(0, grayPicture(8, 6), LoadProblem::None));
    QVERIFY(!model.setPicture(1, grayPicture(8, 7), LoadProblem::None));
    QCOMPARE(state(model, 1), GalleryModel::State::Waiting);
    QVERIFY(model.setPicture(1, grayPicture(8, 6), LoadProblem::None));
    QVERIFY(
        model.setPicture(0, grayPicture(4, 6), LoadProblem::None)); // in place of the one before
    model.setFiles(files({ "b & <c>.raw" }));
    QVERIFY(!model.setPicture(0, grayPicture(8, 13), LoadProblem::None));
    model.setFiles(files({ "a.png" }));
    QVERIFY(model.setPicture(0, grayPicture(8, 12), LoadProblem::None)); // the others count no more
}

QTEST_GUILESS_MAIN(TestGalleryModel)
#include "tst_gallerymodel.moc"
